#pragma once
// How the editor dialogs are laid out: the preview at the left, what edits beside it, the buttons at the
// foot.

#include "editors/framework/working_copy.h"

class CChartPreviewView;
class CDialog;
class CScrollRoom;
class QLayout;
class QWidget;

/// What stands in an editor dialog, from left to right. Null for what it has not.
struct CEditorParts {
    CChartPreviewView* preview = nullptr; ///< its chart and layout are set
    QLayout* abovePreview = nullptr;
    QLayout* left = nullptr; ///< between the preview and the body
    QLayout* body = nullptr;
    /// What the dialog edits: with it there is a strip at the foot, for undo and all that goes with it. Null:
    /// none.
    std::shared_ptr<CWorkingCopy> edited{};
    /// Called when it has been brought back to another state and all rows show it: for what hangs on more.
    std::function<void()> restored{};
};

/// Lays out `dialog`, with OK and Cancel, when it is opened for the first time, and gives it its size, each
/// time: the natural one, in which the preview is the left third, or the one that a person has left a dialog
/// of its caption with. Where the screen does not hold that, the preview gives room first, then what edits
/// scrolls; OK and Cancel are always seen. In a larger dialog the preview takes the growth. Tab goes through
/// the parts in their order and then to the preview. The parts belong to the dialog then.
void OpenEditor(CDialog& dialog, const CEditorParts& parts);

/// Takes in a page of `tabs` that has been made in its room since the dialog was opened.
void TakeIn(CScrollRoom& room, const QWidget& tabs);
