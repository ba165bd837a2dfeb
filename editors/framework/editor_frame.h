#pragma once
// How the editor dialogs are laid out: the preview at the left, what edits beside it, the buttons at the
// foot.

class CChartPreviewView;
class CDialog;
class QLayout;
class QWidget;

/// Lays out `dialog` and gives it the fixed size that this needs. The preview, whose chart and layout are
/// set, takes a third of the dialog at least, and shows its picture at natural size where the smallest screen
/// that the editors are made for leaves the room; null for a dialog without one. It takes the focus by a
/// click only. `body` and `buttons` belong to the dialog then.
void LayEditor(CDialog& dialog, CChartPreviewView* preview, QLayout* body, QWidget* buttons);
