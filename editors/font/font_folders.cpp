#include "editors/font/font_folders.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QStandardPaths>

namespace {

QStringList FontFolders() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    const auto listOf = [](const char* variable, const QString& otherwise) {
        const QString value = qEnvironmentVariable(variable);
        return (value.isEmpty() ? otherwise : value).split(u':', Qt::SkipEmptyParts);
    };
    QStringList folders;
    for (const QString& base : listOf("XDG_DATA_HOME", QDir::homePath() + QStringLiteral("/.local/share")))
        folders += base + QStringLiteral("/fonts");
    folders += QDir::homePath() + QStringLiteral("/.fonts");
    for (const QString& base : listOf("XDG_DATA_DIRS", QStringLiteral("/usr/local/share:/usr/share")))
        folders += base + QStringLiteral("/fonts");
    return folders;
#else
    return QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
#endif
}

} // namespace

QStringList FindFontFiles() {
    QStringList files;
    QSet<QString> seen;
    for (const QString& folder : FontFolders()) {
        QStringList found;
        QDirIterator entries(folder, {QStringLiteral("*.tt*")}, QDir::Files,
                             QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (entries.hasNext())
            found += entries.next();
        found.sort(); // the same order on every computer
        for (const QString& path : found) {
            const QString name = path.mid(path.lastIndexOf(u'/') + 1).toLower();
            if (!seen.contains(name)) {
                seen.insert(name);
                files += path;
            }
        }
    }
    return files;
}
