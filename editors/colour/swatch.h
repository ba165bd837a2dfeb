#pragma once
// The colour sample as an image, for the cells of the grids.

#include <charteditors/chart_color.h>

#include <QImage>

/// The sample of a colour, as the preview pane shows it: over a chequer board, in a frame. Null if there is
/// no room for it. Draws a chart, so keep what comes back. `ratio`: pixels of the screen to one of `size`.
QImage MakeSwatch(const CChartColor& color, QSize size, double ratio);

/// The sample in a row of a list, see CListEditor::Swatch.
inline QImage RowSwatch(const CChartColor& color, QSize size) {
    return MakeSwatch(color, size, 1);
}
