#pragma once
// How the editor dialogs are laid out: the preview at the left, what edits beside it, the buttons at the
// foot.

class CChartPreviewView;
class CDialog;
class QLayout;

/// What stands in an editor dialog, from left to right. Null for what it has not.
struct CEditorParts {
    CChartPreviewView* preview = nullptr; ///< its chart and layout are set
    QLayout* abovePreview = nullptr;
    QLayout* left = nullptr; ///< between the preview and the body
    QLayout* body = nullptr;
};

/// Lays out `dialog`, with OK and Cancel, when it is opened for the first time, and gives it the fixed size
/// that this needs, each time. The preview takes a third of the dialog at least, and shows its picture at
/// natural size where the smallest screen that the editors are made for leaves the room. It takes the focus
/// by a click only; Tab goes through the parts in their order. The parts belong to the dialog then.
void OpenEditor(CDialog& dialog, const CEditorParts& parts);
