#include "editors/framework/conventions.h"

#include <cstdlib>

const CChoices& Alignments() {
    static const CChoices rows({{"TopLeft", 7},
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
                                {"BottomRight2", 13}});
    return rows;
}

const CChoices& Sides() {
    static const CChoices rows({{"Left", 4}, {"Right", 6}, {"Top", 8}, {"Bottom", 2}});
    return rows;
}

int AlignmentToIndex(int code) {
    return Alignments().RowOf(code, 0);
}

int IndexToAlignment(int row) {
    return Alignments().CodeOf(row, 7);
}

int SideToIndex(int code) {
    return Sides().RowOf(code, 0);
}

int IndexToSide(int row) {
    return Sides().CodeOf(row, 4);
}

QString FromEditText(const QString& text) {
    return QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QString FirstLineOf(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] == u'\r' || text[i] == u'\n')
            return text.left(i) + QStringLiteral("...");
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
