// Texts: titles at their places, fonts, markup, scripts, angles, boxes and formats.

#include "tools/gallery/gallery.h"

namespace {

using gallery::points;

BaseChart* blank(int width = 300, int height = 200) {
    PieChart* pie = CPieChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    return PieChart2BaseChart(pie);
}

TextBox* text(BaseChart* chart, int x, int y, const char* words, const char* font = nullptr, double size = 8,
              double angle = 0, int alignment = CHART_TOP_LEFT, bool vertical = false) {
    return CBaseChart_addText(chart, x, y, words, font, points(size), -1, alignment, angle, vertical);
}

BaseChart* ninePlaces() {
    BaseChart* chart = blank();
    const char* const names[] = {"",       "bottom left", "bottom",   "bottom right", "left",
                                 "centre", "right",       "top left", "top",          "top right"};
    for (int place = 1; place <= 9; ++place)
        CBaseChart_addTitle2(chart, place, names[place], "bold", points(9), -1, 0xe0ecff, 0x88aadd);
    return chart;
}

BaseChart* stacked() {
    BaseChart* chart = blank();
    CBaseChart_addTitle(chart, "Annual report", "bold", points(14), 0xffffff, 0x336699, CHART_TRANSPARENT);
    CBaseChart_addTitle2(chart, CHART_TOP, "Figures in thousands", "italic", points(9), -1, CHART_TRANSPARENT,
                         CHART_TRANSPARENT);
    CBaseChart_addTitle2(chart, CHART_TOP_LEFT, "left", nullptr, points(8), -1, 0xf0f0f0, 0x999999);
    TextBox* side = CBaseChart_addTitle2(chart, CHART_LEFT, "Value", "bold", points(9), -1, CHART_TRANSPARENT,
                                         CHART_TRANSPARENT);
    CTextBox_setFontAngle(side, 90, false);
    TextBox* other = CBaseChart_addTitle2(chart, CHART_RIGHT, "Share", "bold", points(9), -1,
                                          CHART_TRANSPARENT, CHART_TRANSPARENT);
    CTextBox_setFontAngle(other, 270, false);
    CBaseChart_addTitle2(chart, CHART_BOTTOM, "Source: our own", nullptr, points(8), 0x666666,
                         CHART_TRANSPARENT, CHART_TRANSPARENT);
    return chart;
}

BaseChart* styleWords() {
    BaseChart* chart = blank();
    const char* const words[] = {"normal", "bold", "italic", "boldItalic"};
    for (int i = 0; i < 4; ++i) {
        text(chart, 10, 10 + i * 45, words[i], words[i], 8);
        text(chart, 100, 5 + i * 45, "Sphinx 0123,45", words[i], 14);
    }
    return chart;
}

BaseChart* sizes() {
    BaseChart* chart = blank(340, 200);
    const double all[] = {6, 7, 8, 9, 10, 12, 16, 24};
    int y = 6;
    for (double size : all) {
        TextBox* made = text(chart, 10, y, "Sharp at every size: 1,234.50", nullptr, size);
        y += CBox_getHeight(TextBox2Box(made)) + 1;
    }
    return chart;
}

BaseChart* faces() {
    BaseChart* chart = blank(340, 200);
    const char* const files[] = {"DejaVuSerif.ttf", "LiberationMono-Regular.ttf",
                                 "LiberationSerif-Italic.ttf", "NotoSansCJK-Regular.ttc|1",
                                 "no-such-file.ttf"};
    for (int i = 0; i < 5; ++i)
        text(chart, 10, 10 + i * 36, files[i], files[i], 12);
    return chart;
}

BaseChart* markup() {
    BaseChart* chart = blank(340, 200);
    text(chart, 10, 10, "E = mc<*super*>2<*/*>, H<*sub*>2<*/*>O, x<*super*>n<*/*> + y<*sub*>i<*/*>", nullptr,
         12);
    text(chart, 10, 50,
         "<*color=CC0000*>red<*/*>, <*font=bold*>bold<*/*>, <*underline=1*>underlined<*/*>, plain", nullptr,
         10);
    text(chart, 10, 85, "<*size=8*>small <*size=14*>large <*size=20*>larger<*/*><*/*><*/*> base", nullptr,
         10);
    text(chart, 10, 130, "one line<*br*>and <*font=italic,color=006600*>another<*/*>", nullptr, 10);
    text(chart, 10, 175, "unclosed <*font=bold and <b> are text", nullptr, 9);
    return chart;
}

BaseChart* scripts() {
    BaseChart* chart = blank(340, 270);
    const char* const lines[] = {"Zażółć gęślą jaźń, Ærøskøbing, ½ €",
                                 "Ελληνικά και кириллица",
                                 "한국어 차트: 매출 100원",
                                 "日本語のグラフ、売上高",
                                 "中文图表：销售额",
                                 "العربية: رسم بياني 123",
                                 "עברית: תרשים (45)",
                                 "mixed: abc אבג 123 العربية end",
                                 "symbols: ☺ ★ → ≤ ∑ 🙂",
                                 "not UTF-8: \xff\xfe end"};
    for (int i = 0; i < 10; ++i)
        text(chart, 10, 8 + i * 26, lines[i], nullptr, 10);
    return chart;
}

BaseChart* angles() {
    BaseChart* chart = blank();
    for (int i = 0; i < 8; ++i) {
        const int column = i % 4, row = i / 4;
        CBaseChart_addLine(chart, 32 + column * 75, 45 + row * 95, 42 + column * 75, 45 + row * 95, 0xcc0000,
                           1);
        TextBox* made =
            text(chart, 37 + column * 75, 45 + row * 95, "Angle", nullptr, 9, i * 45, CHART_CENTER);
        CBox_setBackground(TextBox2Box(made), static_cast<int>(0x80ffe0a0), 0xaa8833, 0);
    }
    return chart;
}

BaseChart* vertical() {
    BaseChart* chart = blank();
    text(chart, 30, 10, "Stacked", "bold", 10, 0, CHART_TOP_LEFT, true);
    text(chart, 90, 10, "세로 글자", nullptr, 10, 0, CHART_TOP_LEFT, true);
    text(chart, 150, 10, "縦書き", nullptr, 12, 0, CHART_TOP_LEFT, true);
    text(chart, 200, 10, "two\nlines", nullptr, 10, 0, CHART_TOP_LEFT, true);
    return chart;
}

BaseChart* boxes() {
    BaseChart* chart = blank(340, 200);
    const int effects[] = {0, 2, -2, CChart_softLighting(CHART_TOP, 0),
                           CChart_glassEffect(CHART_GLARE_NORMAL, CHART_TOP, 3)};
    const char* const names[] = {"flat", "raised", "depressed", "soft lighting", "glass"};
    for (int i = 0; i < 5; ++i) {
        TextBox* made = text(chart, 10 + i % 2 * 165, 10 + i / 2 * 62, names[i], "bold", 10);
        CTextBox_setMargin2(made, 14, 14, 8, 8);
        CBox_setBackground(TextBox2Box(made), 0xa8c4e8, i == 0 ? 0x336699 : CHART_TRANSPARENT, effects[i]);
    }
    return chart;
}

BaseChart* alignments() {
    BaseChart* chart = blank(340, 200);
    for (int i = 1; i <= 9; ++i) {
        TextBox* made =
            text(chart, 10 + (i - 1) % 3 * 110, 10 + (9 - i) / 3 * 62, "two lines\nof text", nullptr, 8);
        CBox_setSize(TextBox2Box(made), 100, 56);
        CTextBox_setAlignment(made, i);
        CBox_setBackground(TextBox2Box(made), 0xf2f6fc, 0x88aadd, 0);
    }
    return chart;
}

BaseChart* wideLetters() {
    BaseChart* chart = blank();
    CTextBox_setFontSize(text(chart, 10, 10, "as wide as high", nullptr, 12), points(12), 0);
    CTextBox_setFontSize(text(chart, 10, 60, "wide", nullptr, 12), points(12), points(24));
    CTextBox_setFontSize(text(chart, 10, 110, "narrow letters", nullptr, 12), points(18), points(9));
    return chart;
}

BaseChart* formats() {
    BaseChart* chart = blank(340, 220);
    const double date = CChart_chartTime(2024, 2, 29, 13, 5, 9);
    const struct {
        double value;
        const char* format;
    } rows[] = {{1234567.891, "2,."},      {1234567.891, "0.,"},          {-0.000123, "G"},
                {0.5, "{value|3}"},        {date, "yyyy-mm-dd hh:nn:ss"}, {date, "ddd d mmm yy, h:nn a"},
                {42, "{value} of {other}"}};
    int y = 8;
    for (const auto& row : rows) {
        text(chart, 10, y, row.format, nullptr, 9);
        text(chart, 190, y, CBaseChart_formatValue(chart, row.value, row.format), "bold", 9);
        y += 29;
    }
    return chart;
}

const gallery::Family family("text", {
                                         {"titles at nine places", ninePlaces},
                                         {"titles that stack", stacked},
                                         {"style words", styleWords},
                                         {"sizes", sizes},
                                         {"font files", faces},
                                         {"markup", markup},
                                         {"scripts", scripts},
                                         {"angles", angles},
                                         {"letters stacked", vertical},
                                         {"boxes", boxes},
                                         {"alignment in the box", alignments},
                                         {"letter width", wideLetters},
                                         {"formats", formats},
                                     });

} // namespace
