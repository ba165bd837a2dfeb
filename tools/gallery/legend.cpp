// Legends: flow, wrapping, columns, kinds of keys, and how the box is dressed.

#include "tools/gallery/gallery.h"

namespace {

using gallery::points;

const double kValues[] = {55, 18, 15, 22, 8, 15, 10};
const char* const kNames[] = {"Labour",    "Licences",   "Taxes",     "Legal",
                              "Insurance", "Facilities", "Production"};

struct Pie {
    PieChart* pie;
    BaseChart* chart;

    explicit Pie(int width = 340, int height = 230, int x = 170, int y = 140, int radius = 75)
        : pie(CPieChart_create(width, height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)),
          chart(PieChart2BaseChart(pie)) {
        CPieChart_setPieSize(pie, x, y, radius);
        CPieChart_setData(pie, kValues, 7, kNames, 7);
        CPieChart_setLabelFormat(pie, " ");
    }
};

TextBox* legend(BaseChart* chart, int x, int y, bool vertical) {
    return LegendBox2TextBox(CBaseChart_addLegend(chart, x, y, vertical, nullptr, points(8)));
}

BaseChart* row() {
    Pie p(560);
    legend(p.chart, 10, 10, false);
    return p.chart;
}

BaseChart* wrapped() {
    Pie p;
    CBox_setBackground(TextBox2Box(legend(p.chart, 10, 10, false)), 0xf4f7fb, 0xa0b4cc, 0);
    return p.chart;
}

BaseChart* column() {
    Pie p(340, 230, 110, 115, 90);
    CBox_setBackground(TextBox2Box(legend(p.chart, 225, 45, true)), -1, 0x000000, 0);
    return p.chart;
}

BaseChart* withValues() {
    Pie p(380, 230, 110, 115, 90);
    TextBox* box = legend(p.chart, 220, 45, true);
    CTextBox_setText(box, "{dataSetName}: {value} ({percent|1}%)");
    return p.chart;
}

BaseChart* dressed() {
    Pie p(340, 230, 110, 115, 90);
    TextBox* box = LegendBox2TextBox(CBaseChart_addLegend(p.chart, 220, 35, true, "italic", points(9)));
    CTextBox_setFontColor(box, 0x223355);
    CTextBox_setMargin(box, 10);
    CBox_setBackground(TextBox2Box(box), 0xc8d8f0, CHART_TRANSPARENT, CChart_softLighting(CHART_TOP, 0));
    return p.chart;
}

BaseChart* ownKeys() {
    Pie p(340, 230, 110, 115, 90);
    LegendBox* box = CBaseChart_addLegend(p.chart, 220, 20, true, nullptr, points(8));
    CBox_setBackground(TextBox2Box(LegendBox2TextBox(box)), 0xffffff, 0x999999, 0);
    CLegendBox_addKey(box, "thin line", 0xcc0000, 1, nullptr);
    CLegendBox_addKey(box, "thick line", 0x006600, 4, nullptr);
    CLegendBox_addKey(box, "box", 0x9933cc, 0, nullptr);
    CLegendBox_addKey(box, "H<*sub*>2<*/*>O", 0x3399cc, 0, nullptr);
    return p.chart;
}

BaseChart* sampleKey() {
    Pie p;
    CPieChart_setData(p.pie, kValues, 7, nullptr, 0);
    LegendBox* box = CBaseChart_addLegend(p.chart, 250, 12, false, nullptr, points(8));
    CBox_setBackground(TextBox2Box(LegendBox2TextBox(box)), -1, 0, 0);
    CLegendBox_addKey(box, "Legend", -1, 0, nullptr);
    return p.chart;
}

BaseChart* longNames() {
    Pie p;
    const char* const names[] = {
        "A name that is quite long",          "Short", "Another name of some length", "x", "yz",
        "The last but one of all names here", "End"};
    CPieChart_setData(p.pie, kValues, 7, names, 7);
    CBox_setBackground(TextBox2Box(legend(p.chart, 10, 10, false)), 0xf4f7fb, 0xa0b4cc, 0);
    return p.chart;
}

const gallery::Family family("legend", {
                                           {"in a row", row},
                                           {"wrapped", wrapped},
                                           {"in a column", column},
                                           {"with values", withValues},
                                           {"dressed", dressed},
                                           {"keys of its own", ownKeys},
                                           {"a key alone", sampleKey},
                                           {"long names", longNames},
                                       });

} // namespace
