#pragma once
// The text of a style as text: its limits, and where in it a path stands.

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <stdexcept>

namespace style {

inline constexpr qsizetype kMaxBytes = 16 * 1024 * 1024;
inline constexpr int kMaxDepth = 32;
inline constexpr qsizetype kMaxItems = 10000;
inline constexpr int kVersion = 1;

/// What makes a text no style.
struct BadStyle : std::runtime_error {
    BadStyle(const QString& where, const char* fault) : std::runtime_error(fault), path(where) {}
    QString path; ///< "chart.sectors[1].color"; empty for the whole.
};

/// The object of a text. Throws BadStyle, whose path is then the line, as "line 3".
QJsonObject Parse(const QByteArray& text);

/// The line, from 1, of the value at `path`, or of what last stands on the way to it.
int LineOf(const QByteArray& text, const QString& path);

/// One level deeper.
inline QString Below(const QString& path, const QString& key) {
    return path.isEmpty() ? key : path + u'.' + key;
}
inline QString Below(const QString& path, qsizetype index) {
    return path + QStringLiteral("[%1]").arg(index);
}

} // namespace style
