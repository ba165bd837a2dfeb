#include "platform/fonts/font_files.h"

#include <QDir>
#include <QDirIterator>
#include <QSet>
#include <QStandardPaths>
#include <algorithm>

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
#elif defined(Q_OS_WIN)
    return QStringList(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                       QStringLiteral("/Microsoft/Windows/Fonts")) +
           QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
#else
    return QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
#endif
}

QString FontFileKey(const QString& path) {
    return path.mid(path.lastIndexOf(u'/') + 1).toLower();
}

static bool Fits(const QString& key, const QString& pattern) {
    const QStringView text = QStringView(pattern).mid(1);
    return text.endsWith(u'*') ? key.contains(text.chopped(1)) : key.endsWith(text);
}

QStringList FindFontFiles(const QStringList& patterns) {
    QStringList files;
    QSet<QString> seen;
    for (const QString& folder : FontFolders()) {
        QStringList found;
        // The names are looked at here: the toolkit's own filters are many times as slow.
        QDirIterator entries(folder, QDir::Files,
                             QDirIterator::Subdirectories | QDirIterator::FollowSymlinks);
        while (entries.hasNext()) {
            const QString path = entries.next();
            const QString key = FontFileKey(path);
            if (std::any_of(patterns.begin(), patterns.end(), [&](const QString& p) { return Fits(key, p); }))
                found += path;
        }
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
