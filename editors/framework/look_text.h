#pragma once
// The look of what a dialog edits as a text, for the clipboard: that of <chartstyle/chartstyle.h>.

#include <charteditors/charteditors.h>

#include <QByteArray>
#include <QString>

/// With the layout, unless it is null.
template <class Chart>
QByteArray LookText(const Chart& chart, const CChartLayout* layout);

/// Takes in what `text` says, of another kind of chart what both kinds have. Gives one line that tells what
/// was taken and what was left; nothing has changed where it says that nothing could be taken.
template <class Chart>
QString TakeLookText(const QByteArray& text, Chart& chart);
