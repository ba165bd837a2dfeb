#include "engine/text/font_files.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QStandardPaths>
#include <algorithm>
#include <charconv>

namespace chartdraw {

namespace {

using FileIndex = QHash<QString, QString>; ///< lower-case file name to path

QStringList fontFolders() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The order of search of the desktop convention: the user's own folders win.
    const auto listOf = [](const char* variable, const QString& fallback) {
        const QString value = qEnvironmentVariable(variable);
        return (value.isEmpty() ? fallback : value).split(u':', Qt::SkipEmptyParts);
    };
    QStringList folders;
    for (const QString& base : listOf("XDG_DATA_HOME", QDir::homePath() + "/.local/share"))
        folders += base + "/fonts";
    folders += QDir::homePath() + "/.fonts";
    for (const QString& base : listOf("XDG_DATA_DIRS", "/usr/local/share:/usr/share"))
        folders += base + "/fonts";
    return folders;
#else
    return QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
#endif
}

FileIndex readFolders() {
    FileIndex index;
    for (const QString& folder : fontFolders()) {
        QStringList paths;
        QDirIterator files(folder, {"*.ttf", "*.ttc", "*.otf", "*.otc"}, QDir::Files,
                           QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (files.hasNext())
            paths += files.next();
        paths.sort(); // Of two files of one name the same one is taken on every computer.
        for (const QString& path : paths) {
            const QString key = path.mid(path.lastIndexOf(u'/') + 1).toLower();
            if (!index.contains(key))
                index.insert(key, path);
        }
    }
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
