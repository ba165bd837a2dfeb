// Arguments beyond reason to the operations of all charts and of pies: each has a defined answer.

#include "tests/engine/chart/picture.h"

#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
const std::string kHuge(1 << 20, 'x');
const std::string kHugeMarkup = [] {
    std::string text;
    while (text.size() < 1 << 20)
        text += "<*sub*>a{label}<*br*>";
    return text;
}();

struct Pie {
    PieChart* pie = CPieChart_create(160, 120, 0xffffff, CHART_TRANSPARENT, 0);
    BaseChart* chart = PieChart2BaseChart(pie);
    std::vector<double> values = {1, 2, 3};

    Pie() {
        const char* const names[] = {"one", "two", "three"};
        CPieChart_setData(pie, values.data(), 3, names, 3);
        CPieChart_setPieSize(pie, 80, 60, 40);
    }
};

/// What the picture must show after a change: a pie, no pie but a picture, or whatever as long as it is made.
enum class Shows { Pie, NoPie, Something };

TEST(Hostile, ArgumentsLeaveADefinedPicture) {
    const struct {
        const char* what;
        std::function<void(Pie&)> change;
        Shows shows;
    } rows[] = {
        {"nothing", [](Pie&) {}, Shows::Pie},
        {"null data of a count", [](Pie& p) { CPieChart_setData(p.pie, nullptr, 5, nullptr, 5); },
         Shows::NoPie},
        {"negative count", [](Pie& p) { CPieChart_setData(p.pie, p.values.data(), -1, nullptr, -7); },
         Shows::NoPie},
        {"labels without values",
         [](Pie& p) {
             const char* names[] = {"a"};
             CPieChart_setData(p.pie, nullptr, 0, names, 1);
         },
         Shows::NoPie},
        {"null labels among them",
         [](Pie& p) {
             const char* names[] = {nullptr, "b"};
             CPieChart_setData(p.pie, p.values.data(), 3, names, 2);
         },
         Shows::Pie},
        {"radius 0", [](Pie& p) { CPieChart_setPieSize(p.pie, 80, 60, 0); }, Shows::NoPie},
        {"radius below 0", [](Pie& p) { CPieChart_setPieSize(p.pie, 80, 60, -5); }, Shows::NoPie},
        {"least radius", [](Pie& p) { CPieChart_setPieSize(p.pie, 80, 60, INT_MIN); }, Shows::NoPie},
        {"largest radius", [](Pie& p) { CPieChart_setPieSize(p.pie, 80, 60, INT_MAX); }, Shows::Pie},
        {"far away", [](Pie& p) { CPieChart_setPieSize(p.pie, INT_MAX, INT_MIN, 40); }, Shows::Something},
        {"ring without width", [](Pie& p) { CPieChart_setDonutSize(p.pie, 80, 60, 40, 40); },
         Shows::Something},
        {"ring of negative radii", [](Pie& p) { CPieChart_setDonutSize(p.pie, 80, 60, -40, -50); },
         Shows::NoPie},
        {"ring from below 0", [](Pie& p) { CPieChart_setDonutSize(p.pie, 80, 60, -40, 40); }, Shows::Pie},
        {"explosion beyond all", [](Pie& p) { CSector_setExplode(CPieChart_sector(p.pie, 2), INT_MAX); },
         Shows::Something},
        {"explosion inwards", [](Pie& p) { CSector_setExplode(CPieChart_sector(p.pie, 2), INT_MIN); },
         Shows::Pie},
        {"start at infinity", [](Pie& p) { CPieChart_setStartAngle(p.pie, kInf, true); }, Shows::Pie},
        {"start at 1e308", [](Pie& p) { CPieChart_setStartAngle(p.pie, -1e308, false); }, Shows::Pie},
        {"depth beyond all", [](Pie& p) { CPieChart_set3D(p.pie, INT_MAX, 45, false); }, Shows::Pie},
        {"no depth", [](Pie& p) { CPieChart_set3D(p.pie, 0, 90, true); }, Shows::Pie},
        {"view without a number", [](Pie& p) { CPieChart_set3D(p.pie, INT_MIN, NAN, false); }, Shows::Pie},
        {"view from the side", [](Pie& p) { CPieChart_set3D(p.pie, 10, 1e308, false); }, Shows::Something},
        {"labels beyond all",
         [](Pie& p) { CPieChart_setLabelLayout(p.pie, INT_MAX, INT_MAX, INT_MAX, INT_MIN); }, Shows::Pie},
        {"columns upside down", [](Pie& p) { CPieChart_setLabelLayout(p.pie, 0, INT_MAX, 100, 20); },
         Shows::Pie},
        {"labels far inside", [](Pie& p) { CPieChart_setLabelLayout(p.pie, 1, INT_MIN, 0, 0); }, Shows::Pie},
        {"labels of infinite size", [](Pie& p) { CPieChart_setLabelStyle(p.pie, "normal", kInf, INT_MIN); },
         Shows::Something},
        {"labels without a number for a size",
         [](Pie& p) { CPieChart_setLabelStyle(p.pie, "none.ttf|-3", NAN, -1); }, Shows::Pie},
        {"labels at no angle",
         [](Pie& p) {
             CTextBox_setFontAngle(CPieChart_setLabelStyle(p.pie, nullptr, 8, -1), NAN, true);
             CTextBox_setFontAngle(CPieChart_setLabelStyle(p.pie, nullptr, 8, -1), -kInf, false);
         },
         Shows::Pie},
        {"label of a megabyte", [](Pie& p) { CPieChart_setLabelFormat(p.pie, kHuge.c_str()); },
         Shows::Something},
        {"label of a megabyte of markup",
         [](Pie& p) { CPieChart_setLabelFormat(p.pie, kHugeMarkup.c_str()); }, Shows::Something},
        {"label that is no text",
         [](Pie& p) { CPieChart_setLabelFormat(p.pie, "\xff\xc0{\x80{label|\xfe}"); }, Shows::Something},
        {"title of a megabyte",
         [](Pie& p) { CBaseChart_addTitle(p.chart, kHuge.c_str(), nullptr, 8, -1, -1, -1); },
         Shows::Something},
        {"title in a huge font",
         [](Pie& p) { CBaseChart_addTitle(p.chart, "W", nullptr, 1e308, -1, -1, -1); }, Shows::Something},
        {"title at no place",
         [](Pie& p) { CBaseChart_addTitle2(p.chart, INT_MIN, "T", nullptr, 8, -1, -1, -1); }, Shows::Pie},
        {"text beyond all places",
         [](Pie& p) { CBaseChart_addText(p.chart, INT_MAX, INT_MIN, "t", nullptr, 8, -1, -3, kInf, true); },
         Shows::Pie},
        {"box beyond all places",
         [](Pie& p) {
             Box* box = TextBox2Box(CBaseChart_addTitle2(p.chart, CHART_TOP, "t", nullptr, 8, -1, -1, -1));
             CBox_setPos(box, INT_MIN, INT_MAX);
             CBox_setSize(box, INT_MAX, INT_MIN);
             CBox_setBackground(box, 0, 0, INT_MAX);
         },
         Shows::Something},
        {"legend beyond all places",
         [](Pie& p) { CBaseChart_addLegend(p.chart, INT_MAX, INT_MAX, false, kHuge.c_str(), -kInf); },
         Shows::Pie},
        {"legend to the left of all",
         [](Pie& p) { CBaseChart_addLegend(p.chart, INT_MIN, INT_MIN, false, nullptr, 8); }, Shows::Pie},
        {"format of a megabyte in the legend",
         [](Pie& p) {
             CTextBox_setText(LegendBox2TextBox(CBaseChart_addLegend(p.chart, 0, 0, true, nullptr, 8)),
                              kHugeMarkup.c_str());
         },
         Shows::Something},
        {"line beyond all places",
         [](Pie& p) { CBaseChart_addLine(p.chart, INT_MIN, INT_MIN, INT_MAX, INT_MAX, 0xff0000, 1); },
         Shows::Pie},
        {"line as wide as can be",
         [](Pie& p) { CBaseChart_addLine(p.chart, 0, 0, 9, 9, CHART_TRANSPARENT, INT_MAX); }, Shows::Pie},
        {"frame beyond all",
         [](Pie& p) { CBaseChart_setRoundedFrame(p.chart, 0xffffff, INT_MAX, INT_MIN, 0, INT_MAX); },
         Shows::Pie},
        {"effect beyond all", [](Pie& p) { CBaseChart_setBackground(p.chart, 0xffffff, -1, INT_MIN); },
         Shows::Something},
        {"metal of a metal",
         [](Pie& p) {
             const int metal = CChart_metalColor(CChart_metalColor(CHART_TRANSPARENT, INT_MIN), INT_MAX);
             CBaseChart_setBackground(p.chart, metal, metal, CChart_softLighting(INT_MAX, INT_MIN));
         },
         Shows::Something},
        {"patterns of nothing",
         [](Pie& p) {
             const int pixel = 0;
             EXPECT_EQ(CBaseChart_patternColor(p.chart, nullptr, 9, 3, 0, 0), CHART_TRANSPARENT);
             EXPECT_EQ(CBaseChart_patternColor(p.chart, &pixel, 1, 0, 0, 0), CHART_TRANSPARENT);
             EXPECT_EQ(CBaseChart_patternColor(p.chart, &pixel, 1, 2, 0, 0), CHART_TRANSPARENT);
             EXPECT_EQ(CBaseChart_patternColor2(p.chart, "none.png", INT_MIN, INT_MAX), CHART_TRANSPARENT);
         },
         Shows::Pie},
        {"values of no range",
         [](Pie& p) {
             for (const double value : {kInf - kInf, kInf, -kInf, 1e308, CHART_NO_VALUE}) {
                 EXPECT_NE(CBaseChart_formatValue(p.chart, value, "20,.-"), nullptr);
                 EXPECT_NE(CBaseChart_formatValue(p.chart, value, "yyyy-mm-dd"), nullptr);
                 EXPECT_NE(CBaseChart_formatValue(p.chart, value, kHuge.c_str()), nullptr);
             }
         },
         Shows::Pie},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Pie pie;
        row.change(pie);
        const QImage image = pictures::of(pie.chart);
        ASSERT_EQ(image.size(), QSize(160, 120));
        // A pixel of the largest sector, on the left, whatever the label layout.
        const unsigned pixel = pictures::at(image, 55, 50);
        if (row.shows == Shows::Pie)
            EXPECT_NE(pixel, 0xffffffu);
        else if (row.shows == Shows::NoPie)
            EXPECT_EQ(pictures::inked(image, 0xffffff), 0);
    }
}

TEST(Hostile, TwentyThousandSectorsAreDrawnInATrice) {
    std::vector<double> values(20000, 1);
    std::vector<const char*> names(values.size(), "a name");
    for (const int layout : {CHART_SIDE_LAYOUT, CHART_CIRCLE_LAYOUT}) {
        Pie pie;
        CPieChart_setData(pie.pie, values.data(), 20000, names.data(), 20000);
        CPieChart_setLabelLayout(pie.pie, layout, -1, -1, -1);
        CPieChart_set3D(pie.pie, 10, 45, false);
        EXPECT_GT(pictures::inked(pictures::of(pie.chart), 0xffffff), 2000);
    }
}

} // namespace
