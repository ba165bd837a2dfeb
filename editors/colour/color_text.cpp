#include "editors/colour/color_text.h"

#include "platform/narrow_text.h"

static QString Rgb6(std::uint32_t color) {
    return QString::asprintf("#%06X", color & 0xFFFFFF);
}

QString HexText(std::uint32_t color) {
    const std::uint32_t opacity = 255 - (color >> 24);
    return opacity == 255 ? Rgb6(color) : Rgb6(color) + QString::asprintf("%02X", opacity);
}

std::optional<std::uint32_t> ColorOfHexText(const QString& text) {
    QString digits = text.trimmed();
    if (digits.startsWith(u'#'))
        digits.remove(0, 1);
    if (digits.size() == 3 || digits.size() == 4) {
        QString doubled;
        for (const QChar digit : digits)
            doubled += QString(2, digit);
        digits = doubled;
    }
    bool good = digits.size() == 6 || digits.size() == 8;
    for (const QChar digit : digits)
        good = good && (digit.isDigit() || (digit.toUpper() >= u'A' && digit.toUpper() <= u'F'));
    if (digits.size() == 6)
        digits += QStringLiteral("FF");
    const std::uint32_t value = good ? digits.toUInt(&good, 16) : 0;
    return good ? std::optional((255 - (value & 0xFF)) << 24 | value >> 8) : std::nullopt;
}

QString ColorText(const CChartColor& color) {
    if (color.m_type == 1)
        return color.m_patternFile.empty()
                   ? QStringLiteral("Pattern, no image")
                   : QStringLiteral("Pattern: ") + platform::NarrowToText(color.m_patternFile.data());
    const auto alpha = static_cast<int>(color.m_color >> 24);
    QString text = Rgb6(color.m_color);
    if (alpha == 0)
        text += QStringLiteral(", opaque");
    else if (alpha == 255)
        text = QStringLiteral("transparent");
    else
        text += QStringLiteral(", %1 % transparent").arg((alpha * 100 + 127) / 255);
    return color.m_type == 2
               ? QStringLiteral("Metal ") + text + QStringLiteral(", %1 degrees").arg(color.m_direction)
               : text;
}
