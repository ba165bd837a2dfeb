#include "editors/colour/grid_geometry.h"

#include <algorithm>

QSize GridShape::Cell(QSize grid) const {
    return {std::max(0, (grid.width() - 2 * margin - (columns - 1) * gap) / columns),
            std::max(0, (grid.height() - 2 * margin - (rows - 1) * gap) / rows)};
}

QRect GridShape::CellRect(int index, QSize grid) const {
    const QSize cell = Cell(grid);
    const int row = index / columns;
    const int column = index % columns;
    return {QPoint(column * (cell.width() + gap) + margin, row * (cell.height() + gap) + margin), cell};
}

int GridShape::HitTest(const QPoint& place, QSize grid) const {
    const QPoint inside = place - QPoint(margin, margin);
    if (inside.x() < 0 || inside.y() < 0)
        return -1;
    const QSize cell = Cell(grid);
    const int column = inside.x() / (cell.width() + gap);
    const int row = inside.y() / (cell.height() + gap);
    const int index = row * columns + column;
    if (column >= columns || row >= rows || !CellRect(index, grid).contains(place))
        return -1;
    return index;
}
