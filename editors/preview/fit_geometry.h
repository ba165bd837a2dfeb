#pragma once
// Where a picture stands in a pane that shows it whole.

#include <QRect>

/// The place of a picture fitted into a pane of that size, in the pane's pixels: centred at natural size if
/// it is smaller both ways, else shrunk with a margin along the side that limits it. Empty if the pane is too
/// small for the margin.
QRect FitRect(QSize pane, QSize picture);
