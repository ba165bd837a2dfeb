#pragma once
// What the fields have in common: the row of a swatch, a "..." button and a text, and the way to their page.

#include <functional>

class CChartPreviewView;
class CDialog;
class QLabel;
class QPushButton;
class QString;

/// Lays out a field as swatch, button and text in one row. `choose` is called by the button, and by a click
/// on the swatch.
void LaySwatchField(CDialog& field, CChartPreviewView& swatch, QLabel& text,
                    const std::function<void()>& choose);

/// Makes `button` the way into the dialog of the field: `choose` is called by it.
void OpenBy(CDialog& field, QPushButton& button, const std::function<void()>& choose);

/// Tells the value of a swatch field: in the tool tip, and to a screen reader behind the name of the field.
void TellValue(CDialog& field, const QString& value);

/// Sends the message of a changed field to the page that it stands on, the nearest dialog above it.
void SendToPage(CDialog& field, int key);
