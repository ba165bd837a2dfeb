#pragma once
// The demo without a person: pictures of what there is to see.

#include "charts.h"

/// Writes the window, each editor and each finished chart as PNG files into `folder`, which is made. Says on
/// the standard output what it has written; false, and why on the error output, if that fails.
bool WritePictures(const Charts& charts, const QString& folder);
