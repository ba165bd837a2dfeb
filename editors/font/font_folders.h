#pragma once

#include <QStringList>

/// The paths of all files in the font folders and their subfolders that may be TrueType, in the order in
/// which the drawing library searches; of files of one name, whatever its case, only the first.
QStringList FindFontFiles();
