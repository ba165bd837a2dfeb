#pragma once
// Where font files are: the platform's font folders with all their subfolders, and names in them.

#include <QString>
#include <optional>
#include <string_view>

namespace chartdraw {

/// A font name taken apart: "file.ttc|2" is face 2 of file.ttc.
struct FontName {
    std::string_view file;
    int face = 0;
};
FontName splitFontName(std::string_view name);

/// The path of a font file. A name with a slash is a path and stands for itself; any other is looked up in
/// the font folders, case-insensitively. Empty when there is no such file. The folders are read once.
QString findFontFile(std::string_view file);

} // namespace chartdraw
