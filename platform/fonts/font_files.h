#pragma once
// Where font files are: the platform's font folders with all their subfolders.

#include <QStringList>

namespace platform {

/// The paths of all files of those patterns ("*.ttf" ends so, "*.tt*" contains that), in the order of search:
/// the user's own folders first, and within a folder alike on every computer. Of files of one name, whatever
/// its case, only the first.
QStringList FindFontFiles(const QStringList& patterns);

/// What files are told apart by: the name without its folders, in lower case.
QString FontFileKey(const QString& path);

} // namespace platform
