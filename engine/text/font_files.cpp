#include "engine/text/font_files.h"

#include "platform/fonts/font_files.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <charconv>

namespace chartdraw {

namespace {

using FileIndex = QHash<QString, QString>; ///< lower-case file name to path

FileIndex readFolders() {
    FileIndex index;
    for (const QString& path : platform::FindFontFiles({"*.ttf", "*.ttc", "*.otf", "*.otc"}))
        index.insert(platform::FontFileKey(path), path);
    return index;
}

} // namespace

FontName splitFontName(std::string_view name) {
    const auto bar = name.rfind('|');
    if (bar == name.npos)
        return {.file = name, .face = 0};
    const std::string_view digits = name.substr(bar + 1);
    const char* end = digits.data() + digits.size();
    int face = 0;
    const auto [stop, error] = std::from_chars(digits.data(), end, face);
    if (error != std::errc() || stop != end)
        return {.file = name, .face = 0};
    return {.file = name.substr(0, bar), .face = face};
}

QString findFontFile(std::string_view file) {
    const QString name = QString::fromUtf8(file.data(), std::ssize(file));
    if (name.contains(u'/') || name.contains(QDir::separator()))
        return QFileInfo(name).isFile() ? name : QString();
    static const FileIndex index = readFolders();
    return index.value(name.toLower());
}

} // namespace chartdraw
