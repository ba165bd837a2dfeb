#include "editors/framework/conventions.h"

#include "platform/narrow_text.h"

#include <array>
#include <cmath>
#include <cstdlib>

namespace {

struct Row {
    const char* text;
    int code;
};

constexpr std::array<Row, 13> kAlignments{{{"TopLeft", 7},
                                           {"TopCenter(Top)", 8},
                                           {"TopRight", 9},
                                           {"Left", 4},
                                           {"Center", 5},
                                           {"Right", 6},
                                           {"BottomLeft", 1},
                                           {"BottomCenter(Bottom)", 2},
                                           {"BottomRight", 3},
                                           {"TopLeft2", 10},
                                           {"TopRight2", 11},
                                           {"BottomLeft2", 12},
                                           {"BottomRight2", 13}}};
constexpr std::array<Row, 4> kSides{{{"Left", 4}, {"Right", 6}, {"Top", 8}, {"Bottom", 2}}};

template <std::size_t N>
int RowOf(const std::array<Row, N>& rows, int code) {
    for (std::size_t i = 0; i < N; ++i) {
        if (rows[i].code == code) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

template <std::size_t N>
int CodeOf(const std::array<Row, N>& rows, int row) {
    return row >= 0 && row < static_cast<int>(N) ? rows[static_cast<std::size_t>(row)].code : rows[0].code;
}

template <std::size_t N>
std::array<const char*, N + 1> TextsOf(const std::array<Row, N>& rows) {
    std::array<const char*, N + 1> texts{};
    for (std::size_t i = 0; i < N; ++i) {
        texts[i] = rows[i].text;
    }
    return texts;
}

} // namespace

double RoundTo(double value, int digits) {
    if (!std::isfinite(value)) {
        return 0;
    }
    const double sign = value >= 0 ? 1 : -1;
    if (digits < 1) {
        return std::ceil(value) * sign;
    }
    const double scale = std::pow(10.0, digits);
    const double wrapped = std::fmod(std::trunc(std::fabs(value) * scale + 0.5), 4294967296.0);
    const auto low = static_cast<std::int32_t>(static_cast<std::uint32_t>(wrapped));
    return sign * low / scale;
}

int AlignmentToIndex(int code) {
    return RowOf(kAlignments, code);
}

int IndexToAlignment(int row) {
    return CodeOf(kAlignments, row);
}

int SideToIndex(int code) {
    return RowOf(kSides, code);
}

int IndexToSide(int row) {
    return CodeOf(kSides, row);
}

const char* const* AlignmentTexts() {
    static const auto texts = TextsOf(kAlignments);
    return texts.data();
}

const char* const* SideTexts() {
    static const auto texts = TextsOf(kSides);
    return texts.data();
}

QString ToEditText(const QString& text) {
    return QString(text).replace(u'\n', QStringLiteral("\r\n"));
}

QString FromEditText(const QString& text) {
    return QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString FirstLineOf(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\r' || text[i] == u'\n') {
            return text.left(i) + QStringLiteral("...");
        }
    }
    return text;
}

CChartColor RandomChartColor() {
    CChartColor color;
    const auto red = static_cast<std::uint32_t>(std::rand() % 256);
    const auto green = static_cast<std::uint32_t>(std::rand() % 256);
    const auto blue = static_cast<std::uint32_t>(std::rand() % 256);
    color.m_color = red << 16 | green << 8 | blue;
    return color;
}

QString FromModelText(const CChartString& text) {
    return QString::fromStdString(platform::NarrowToUtf8(text.data()));
}

CChartString ToModelText(const QString& text) {
    CChartString result;
    result = platform::Utf8ToNarrow(text.toStdString()).c_str();
    return result;
}
