// Charts on a chart: where they stand, in which order, and what happens when they change or end.

#include "tests/engine/chart/picture.h"
#include <QColor>
#include <climits>
#include <vector>

namespace {
using namespace pictures;

BaseChart* plain(int width, int height, int background) {
    return PieChart2BaseChart(CPieChart_create(width, height, background, CHART_TRANSPARENT, 0));
}

struct Multi {
    MultiChart* multi;
    BaseChart* chart;

    Multi(int width = 100, int height = 100)
        : multi(CMultiChart_create(width, height, kWhite, CHART_TRANSPARENT, 0)), chart(MultiChart2BaseChart(multi)) {}
    ~Multi() { CBaseChart_destroy(chart); }
    Multi(const Multi&) = delete;
    Multi& operator=(const Multi&) = delete;

    QImage picture() { return of(chart, false); }
};

TEST(MultiChart, ShowsChartsAtTheirPlacesInTheOrderAdded) {
    BaseChart* red = plain(40, 30, kRed);
    BaseChart* blue = plain(40, 30, kBlue);
    {
        Multi m;
        CMultiChart_addChart(m.multi, 10, 20, red);
        CMultiChart_addChart(m.multi, 30, 40, blue);
        QImage image = m.picture();
        EXPECT_EQ(boundsOf(image, kRed), QRect(10, 20, 40, 30));
        EXPECT_EQ(boundsOf(image, kBlue), QRect(30, 40, 40, 30));
        EXPECT_EQ(at(image, 40, 45), kBlue) << "the later one covers";

        CMultiChart_addChart(m.multi, 50, 60, red); // again: it moves, and is the last one now
        image = m.picture();
        EXPECT_EQS((boundsOf(image, kRed), QRect(50, 60, 40, 30)), (at(image, 15, 25), kWhite));
    }
    CBaseChart_destroy(red);
    CBaseChart_destroy(blue);
}

TEST(MultiChart, CutsChartsOffAtItsSides) {
    BaseChart* red = plain(80, 80, kRed);
    Multi m;
    const std::tuple<QPoint, QRect> rows[] = {
        {{-30, -50}, {0, 0, 50, 30}},
        {{60, 70}, {60, 70, 40, 30}},
        {{-79, 99}, {0, 99, 1, 1}},
        {{100, 0}, {}},
        {{-80, 0}, {}},
        {{INT_MAX, INT_MIN}, {}},
    };
    for (const auto& [at, seen] : rows) {
        CMultiChart_addChart(m.multi, at.x(), at.y(), red);
        EXPECT_EQ(boundsOf(m.picture(), kRed), seen) << at.x() << ", " << at.y();
    }
    CBaseChart_destroy(red);
}

TEST(MultiChart, FollowsChangesOfItsChartsAndItsSize) {
    BaseChart* chart = plain(40, 30, kRed);
    Multi m(100, 1);
    CMultiChart_addChart(m.multi, 0, 50, chart);
    EXPECT_EQ(inked(m.picture(), kWhite), 0);
    CBaseChart_setSize(m.chart, 100, 100);
    EXPECT_EQ(boundsOf(m.picture(), kRed), QRect(0, 50, 40, 30));
    CBaseChart_setSize(chart, 20, 20);
    EXPECT_EQ(boundsOf(m.picture(), kRed), QRect(0, 50, 20, 20));
    CBaseChart_setBackground(chart, kGreen, -1, 0);
    EXPECT_EQ(boundsOf(m.picture(), kGreen), QRect(0, 50, 20, 20));
    CBaseChart_setSize(chart, 0, -3);
    EXPECT_EQ(inked(m.picture(), kWhite), 0);
    CBaseChart_setSize(chart, INT_MAX, 1 << 20);
    EXPECT_EQ(inked(m.picture(), kWhite), 0) << "too large for a picture of its own";
    CBaseChart_destroy(chart);
}

TEST(MultiChart, DropsAChartThatEndsAndOutlivedOnesStay) {
    BaseChart* red = plain(40, 30, kRed);
    BaseChart* blue = plain(40, 30, kBlue);
    {
        Multi m;
        CMultiChart_addChart(m.multi, 0, 0, red);
        CMultiChart_addChart(m.multi, 50, 50, blue);
        CMultiChart_setMainChart(m.multi, red);
        EXPECT_EQ(boundsOf(m.picture(), kRed), QRect(0, 0, 40, 30));
        CBaseChart_destroy(red);
        const QImage image = m.picture();
        EXPECT_EQS((boundsOf(image, kRed).isEmpty(), true), (boundsOf(image, kBlue), QRect(50, 50, 40, 30)));
    }
    CBaseChart_setBackground(blue, kGreen, -1, 0); // its multi-chart is gone
    EXPECT_EQ(boundsOf(of(blue), kGreen), QRect(0, 0, 40, 30));
}

TEST(MultiChart, RefusesCirclesOfCharts) {
    Multi outer, middle, inner;
    BaseChart* red = plain(10, 10, kRed);
    CMultiChart_addChart(outer.multi, 10, 0, middle.chart);
    CMultiChart_addChart(middle.multi, 20, 0, inner.chart);
    CMultiChart_addChart(inner.multi, 30, 0, red);
    CMultiChart_addChart(outer.multi, 0, 0, outer.chart);
    CMultiChart_addChart(inner.multi, 0, 0, outer.chart);
    CMultiChart_addChart(middle.multi, 0, 0, outer.chart);
    CMultiChart_addChart(outer.multi, 0, 0, nullptr);
    EXPECT_EQ(boundsOf(outer.picture(), kRed), QRect(60, 0, 10, 10)) << "charts within charts";
    CBaseChart_destroy(red);
}

TEST(MultiChart, DrawsEachChartWithItsOwnColoursAndSmoothness) {
    LinearMeter* meter = CLinearMeter_create(50, 50, CHART_TRANSPARENT, CHART_TRANSPARENT, 0);
    BaseMeter* base = LinearMeter2BaseMeter(meter);
    BaseChart* chart = BaseMeter2BaseChart(base);
    CLinearMeter_setMeter(meter, 0, 0, 50, 50, CHART_LEFT, false);
    CBaseMeter_setLabelStyle(base, nullptr, 8, CHART_TRANSPARENT, 0);
    CBaseMeter_setLineWidth(base, 0, 0, 0, 0);
    const int pixels[] = {kRed, kBlue};
    CLinearMeter_addZone(meter, 0, 50, CBaseChart_patternColor(chart, pixels, 2, 1, 0, 0), nullptr);
    CBaseChart_setAntiAlias(chart, false, 0);
    CBaseMeter_addPointer(base, 75, kGreen, -1);
    Multi m;
    CMultiChart_addChart(m.multi, 40, 40, chart);
    const QImage image = m.picture();
    shows(image, {{40, 80, kRed, "patterns begin at the chart's corner"}, {41, 80, kBlue}});
    const QImage pointer = image.copy(40, 40, 50, 25);
    for (int y = 0; y < pointer.height(); ++y) {
        for (int x = 0; x < pointer.width(); ++x) {
            const int colour = at(pointer, x, y);
            ASSERT_TRUE(colour == kWhite || colour == kGreen) << x << ", " << y;
        }
    }
    CBaseChart_destroy(chart);
}

TEST(MultiChart, ListsTheKeysOfTheMainChartInItsLegend) {
    const double values[] = {1, 2};
    const char* const names[] = {"one", "two"};
    const int colours[] = {kRed, kGreen, kBlue};
    BaseChart* charts[3];
    for (int i = 0; i < 3; ++i) {
        PieChart* pie = CPieChart_create(10, 10, CHART_TRANSPARENT, CHART_TRANSPARENT, 0);
        CPieChart_setData(pie, values, 2, names, i == 0 ? 1 : 2);
        CSector_setColor(CPieChart_sector(pie, 0), colours[i], -1, -1);
        CPieChart_setPieSize(pie, 0, 0, 0);
        charts[i] = PieChart2BaseChart(pie);
    }
    Multi m(200, 100);
    CBaseChart_addLegend(m.chart, 10, 10, true, nullptr, 8);
    CMultiChart_addChart(m.multi, 0, 0, charts[0]);
    CMultiChart_addChart(m.multi, 0, 0, charts[1]);
    const auto shown = [&] {
        const QImage image = m.picture();
        for (int i = 0; i < 3; ++i)
            if (!boundsOf(image, colours[i]).isEmpty()) return i;
        return -1;
    };
    EXPECT_EQ(shown(), 0) << "the first one if none is named";
    CMultiChart_setMainChart(m.multi, charts[1]);
    EXPECT_EQ(shown(), 1);
    CMultiChart_setMainChart(m.multi, charts[2]); // not added: ignored
    CMultiChart_setMainChart(m.multi, nullptr);
    EXPECT_EQ(shown(), 1);
    CBaseChart_addLegend(charts[1], 50, 50, true, nullptr, 8); // beyond that chart's own 10 pixels
    EXPECT_EQ(shown(), -1) << "a chart that shows a legend speaks for itself";
    CBaseChart_destroy(charts[1]);
    EXPECT_EQ(shown(), 0);
    CBaseChart_destroy(charts[0]);
    EXPECT_EQ(shown(), -1);
    CBaseChart_destroy(charts[2]);
}
} // namespace
