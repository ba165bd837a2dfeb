#include "platform/fonts/font_files.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QStandardPaths>

namespace platform {

static QStringList FontFolders() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    // The order of search of the desktop convention.
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

QString FontFileKey(const QString& path) {
    return path.mid(path.lastIndexOf(u'/') + 1).toLower();
}

QStringList FindFontFiles(const QStringList& patterns) {
    QStringList files;
    QSet<QString> seen;
    for (const QString& folder : FontFolders()) {
        QStringList found;
        QDirIterator entries(folder, patterns, QDir::Files,
                             QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (entries.hasNext())
            found += entries.next();
        found.sort();
        for (const QString& path : found) {
            const QString key = FontFileKey(path);
            if (!seen.contains(key)) {
                seen.insert(key);
                files += path;
            }
        }
    }
    return files;
}

} // namespace platform
