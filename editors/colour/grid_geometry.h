#pragma once
// Where the cells of a grid of swatches are.

#include <QRect>

/// Margins and gaps in pixels.
struct GridShape {
    int columns;
    int rows;
    int margin = 2;
    int gap = 5;

    int Count() const { return columns * rows; }
    /// The size of a cell in a grid of that size; nothing is too small.
    QSize Cell(QSize grid) const;
    QRect CellRect(int index, QSize grid) const;
    /// The cell at a place, -1 for the gaps and what lies outside.
    int HitTest(const QPoint& place, QSize grid) const;
};
