#pragma once
// Letters for Alt on everything in a dialog that has a text.

class QWidget;

/// Marks a letter in the text of every tab, label with a buddy, button and check of `dialog`, in reading
/// order, each letter once as long as there are letters enough. Of pages that show one at a time, each may
/// use the letters of the others. Texts that already have a letter keep it; OK and Cancel have Enter and Esc.
void AssignMnemonics(QWidget& dialog);
