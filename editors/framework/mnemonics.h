#pragma once
// Letters for Alt on everything in a page that has a text.

class QWidget;

/// Marks a letter in the text of every label with a buddy, button and check of `page`, in reading order, each
/// letter once as long as there are letters enough. Texts that already have one keep it.
void AssignMnemonics(QWidget& page);
