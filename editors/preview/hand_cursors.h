#pragma once
// The two hands that show that a picture can be dragged, and that it is.

#include <QCursor>

QCursor OpenHandCursor();
QCursor ClosedHandCursor();
