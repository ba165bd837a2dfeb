// Charts of all kinds with all sorts of data, names, sizes and fonts: no text lies over another one by more
// than two pixels, and none leaves the picture. CHART_RANDOM_CHARTS sets how many there are,
// CHART_RANDOM_SEED which one is the first.

#include "tests/engine/room/overlap.h"
#include <QtGlobal>
#include <gtest/gtest.h>
#include <random>

namespace {
const char* const kNames[] = {"North",
                              "South-East",
                              "Unbreakablelongnameofaplace",
                              "Q3",
                              "Zażółć gęślą",
                              "A rather long name of several words",
                              "売上高の推移",
                              "한국어 이름",
                              "العربية",
                              "עברית 45",
                              "Item",
                              "1",
                              "Costs of maintenance",
                              "x",
                              "Umsatz je Mitarbeiter"};
const char* const kTitles[] = {"Sales", "A title of many words that has no place on a single line of a small picture",
                               "First line\nSecond line", "Überschrift", "年間売上高と費用の比較"};

class Maker {
public:
    explicit Maker(unsigned seed) : m_random(seed) {}

    BaseChart* make() {
        const std::pair<int, int> sizes[] = {{200, 150}, {360, 260}, {550, 500}, {500, 550}, {800, 400}, {1600, 900}};
        std::tie(m_width, m_height) = sizes[below(below(8) == 0 ? 6 : 5)];
        const double points[] = {8, 8, 8, 10, 12, 20};
        m_font = points[below(6)];
        m_top = m_font * 1.4 + 14;
        const int kind = below(10);
        BaseChart* chart = kind < 2    ? pie()
                           : kind == 2 ? polar()
                           : kind == 3 ? angularMeter()
                           : kind == 4 ? linearMeter()
                                       : xy();
        dress(chart);
        return chart;
    }

private:
    int below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return below(count) == 0; }
    double part() { return static_cast<double>(m_random() % 10000) / 10000; }
    const char* name() { return kNames[below(static_cast<int>(std::size(kNames)))]; }

    std::vector<const char*> someNames(int count) {
        std::vector<const char*> names(static_cast<std::size_t>(count));
        std::generate(names.begin(), names.end(), [this] { return name(); });
        return names;
    }
    std::vector<double> data(int count) {
        const double scales[] = {1, 100, 1e-7, 1e6, 3e12, 1e40, 0.013};
        const double scale = scales[oneIn(2) ? below(7) : 1];
        const int form = below(8);
        std::vector<double> values;
        for (int i = 0; i < count; ++i) {
            const double some = part() * scale;
            const double forms[] = {some - scale / 2, -some, scale, some + 50 * scale};
            const double value = form < 4 ? forms[form] : some;
            values.push_back(form == 4 && oneIn(5) ? CHART_NO_VALUE : value);
        }
        return values;
    }
    int count() {
        const int counts[] = {0, 1, 2, 3, 5, 7, 12, 20, 60, 400};
        return counts[oneIn(4) ? below(10) : 3 + below(5)];
    }

    void dress(BaseChart* chart) {
        TextBox* title = nullptr;
        if (!oneIn(3))
            title = CBaseChart_addTitle(chart, kTitles[below(5)], oneIn(2) ? "bold" : nullptr, m_font * 1.2, -1,
                                        CHART_TRANSPARENT, CHART_TRANSPARENT);
        const int top = title != nullptr ? CBox_getHeight(TextBox2Box(title)) : 0;
        if (oneIn(4))
            CBaseChart_addLegend(chart, m_width * (1 + below(3)) / 5, top + 5, oneIn(2), nullptr, m_font);
        else if (oneIn(8) && m_height >= 260)
            CBaseChart_addTitle2(chart, CHART_BOTTOM, kTitles[below(2)], nullptr, m_font, -1, CHART_TRANSPARENT,
                                 CHART_TRANSPARENT);
    }

    BaseChart* pie() {
        PieChart* pie = CPieChart_create(m_width, m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        const int count = this->count();
        const std::vector<const char*> names = someNames(count);
        const std::vector<double> values = data(count);
        CPieChart_setPieSize(pie, m_width / 2, m_height / 2 + 10, std::min(m_width, m_height) / (3 + below(3)));
        CPieChart_setData(pie, values.data(), count, names.data(), count);
        CPieChart_setLabelStyle(pie, nullptr, m_font, -1);
        CPieChart_setStartAngle(pie, below(360), !oneIn(4));
        if (oneIn(2)) CPieChart_setLabelLayout(pie, CHART_SIDE_LAYOUT, -1, -1, -1);
        if (oneIn(3)) CPieChart_set3D(pie, -1, -1, oneIn(2));
        if (oneIn(4)) CPieChart_setLabelFormat(pie, "{label}: {value} ({percent|1}%)");
        return PieChart2BaseChart(pie);
    }

    BaseChart* polar() {
        PolarChart* polar = CPolarChart_create(m_width, m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        CPolarChart_setPlotArea(polar, m_width / 2, m_height / 2 + 10, std::min(m_width, m_height) / 3,
                                CHART_TRANSPARENT, CHART_LINE_COLOR, 1);
        const int count = this->count();
        const std::vector<double> values = data(count);
        PolarLineLayer* line = CPolarChart_addLineLayer(polar, values.data(), count, -1, name());
        if (oneIn(2)) CPolarLayer_setDataLabelStyle(PolarLineLayer2PolarLayer(line), nullptr, m_font, -1, 0);
        if (oneIn(2)) {
            const std::vector<const char*> names = someNames(count);
            CAngularAxis_setLabels(CPolarChart_angularAxis(polar), names.data(), count);
        }
        CAngularAxis_setLabelStyle(CPolarChart_angularAxis(polar), nullptr, m_font, -1, 0);
        Axis* radial = CPolarChart_radialAxis(polar);
        CAxis_setLabelStyle(radial, nullptr, m_font, -1, 0);
        if (oneIn(3)) CAxis_setTitle(radial, name(), nullptr, m_font, -1);
        return PolarChart2BaseChart(polar);
    }

    void scale(BaseMeter* meter) {
        const double tops[] = {1, 100, 250, 5e9, 1e-4, 7e20};
        const double top = tops[below(6)];
        CBaseMeter_setScale(meter, oneIn(3) ? -top : 0, top, oneIn(2) ? 0 : top / (2 + below(12)), 0, 0);
        CBaseMeter_setLabelStyle(meter, nullptr, m_font, -1, 0);
        CBaseMeter_addPointer(meter, top * part(), 0xcc0000, -1);
    }
    BaseChart* angularMeter() {
        AngularMeter* meter = CAngularMeter_create(m_width, m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        const double angles[] = {-135, 135, -90, 90, 0, 360};
        const int which = below(3);
        CAngularMeter_setMeter(meter, m_width / 2, m_height / 2 + 10,
                               std::min(m_width, m_height) * (20 + below(25)) / 100, angles[2 * which],
                               angles[2 * which + 1]);
        scale(AngularMeter2BaseMeter(meter));
        return BaseMeter2BaseChart(AngularMeter2BaseMeter(meter));
    }
    BaseChart* linearMeter() {
        LinearMeter* meter = CLinearMeter_create(m_width, m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        const int sides[] = {CHART_LEFT, CHART_RIGHT, CHART_TOP, CHART_BOTTOM};
        const int side = below(4);
        if (side < 2)
            CLinearMeter_setMeter(meter, m_width / 2, m_height / 5, 20, m_height * 3 / 5, sides[side], oneIn(4));
        else
            CLinearMeter_setMeter(meter, m_width / 10, m_height / 2, m_width * 4 / 5, 20, sides[side], oneIn(4));
        scale(LinearMeter2BaseMeter(meter));
        for (int i = below(4); i > 0; --i) CLinearMeter_addZone(meter, part() * 50, 50 + part() * 50, 0xffeeaa, name());
        return BaseMeter2BaseChart(LinearMeter2BaseMeter(meter));
    }

    void rowLabels(Axis* x, int count) {
        std::vector<double> rows;
        const double start = CChart_chartTime(2004, 1 + below(12), 1, 0, 0, 0);
        const double steps[] = {86400, 604800, 2629800, 180};
        const double step = steps[below(4)];
        const bool names = oneIn(2);
        std::string list = "{value|";
        for (int i = 0; i < count; ++i) {
            rows.push_back(names ? i : start + step * i);
            list += std::string("\t") + name();
        }
        const char* const formats[] = {"", "{value|mmm yyyy}", "{value|d.m.yy}"};
        CAxis_setLabels2(x, rows.data(), count, names ? (list + "}").c_str() : formats[below(3)]);
    }

    void style(Axis* axis) {
        const double angles[] = {0, 0, 0, 45, 90, -30};
        CAxis_setLabelStyle(axis, nullptr, m_font, -1, angles[below(6)]);
        if (!oneIn(3)) CAxis_setTitle(axis, oneIn(2) ? name() : kTitles[below(5)], nullptr, m_font, -1);
        if (oneIn(6)) {
            const char* const formats[] = {"${value}", "{value|2,.}", "{value} kg"};
            CAxis_setLabelFormat(axis, formats[below(3)]);
        }
        for (int i = oneIn(5) ? 1 + below(4) : 0; i > 0; --i)
            CAxis_addMark(axis, part() * 100, 0xcc0000, name(), nullptr, m_font);
    }

    BaseChart* xy() {
        XYChart* chart = CXYChart_create(m_width, m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
        BaseChart* base = XYChart2BaseChart(chart);
        const int left = 20 + below(60), right = 5 + below(60), bottom = 20 + below(60);
        const int top = static_cast<int>(m_top) + below(20);
        CXYChart_setPlotArea(chart, left, top, std::max(40, m_width - left - right),
                             std::max(40, m_height - top - bottom), -1, -1, -1, -1, -1);
        const int count = this->count();
        Axis* x = CXYChart_xAxis(chart);
        Axis* y = CXYChart_yAxis(chart);
        layers(chart, count);
        if (oneIn(2)) rowLabels(x, count);
        style(x);
        style(y);
        if (oneIn(5)) CAxis_setLogScale3(y, nullptr);
        if (oneIn(5)) CXYChart_swapXY(chart, true);
        if (oneIn(8)) CXYChart_setYAxisOnRight(chart, true);
        if (oneIn(8)) style(CXYChart_yAxis2(chart));
        if (oneIn(10)) CXYChart_setAxisAtOrigin(chart, CHART_ORIGIN_XY, 0);
        return base;
    }

    void layers(XYChart* chart, int count) {
        const int combines[] = {CHART_COMBINE_OVERLAY, CHART_COMBINE_STACK, CHART_COMBINE_SIDE,
                                CHART_COMBINE_PERCENTAGE};
        for (int i = 1 + below(2); i > 0; --i) {
            Layer* layer = nullptr;
            const std::vector<double> a = data(count), b = data(count), c = data(count), d = data(count);
            if (const int kind = below(6); kind == 0) {
                layer = LineLayer2Layer(CXYChart_addLineLayer(chart, a.data(), count, -1, name(), 0));
            } else if (kind == 1) {
                layer = LineLayer2Layer(CXYChart_addScatterLayer(chart, b.data(), count, a.data(), count, name(),
                                                                 CHART_CIRCLE_SYMBOL, 5 + below(9), -1, -1));
            } else if (kind == 2) {
                layer = AreaLayer2Layer(CXYChart_addAreaLayer2(chart, combines[1 + 2 * below(2)], 0));
                for (const auto& set : {a, b}) CLayer_addDataSet(layer, set.data(), count, -1, name());
            } else if (kind == 3) {
                layer = BaseBoxLayer2Layer(BoxWhiskerLayer2BaseBoxLayer(
                    CXYChart_addBoxWhiskerLayer(chart, a.data(), count, b.data(), count, c.data(), count, d.data(),
                                                count, nullptr, 0, -1, -1, -1)));
            } else {
                layer = BarLayer2Layer(CXYChart_addBarLayer2(chart, combines[below(4)], oneIn(4) ? 8 : 0));
                for (int set = 1 + below(3); set > 0; --set)
                    CLayer_addDataSet(layer, (set == 1 ? a : set == 2 ? b : c).data(), count, -1, name());
                if (oneIn(3)) CLayer_setAggregateLabelStyle(layer, "bold", m_font, -1, 0);
            }
            if (oneIn(2)) CLayer_setDataLabelStyle(layer, nullptr, m_font, -1, 0);
        }
    }

    std::mt19937 m_random;
    int m_width = 0, m_height = 0;
    double m_font = 8, m_top = 0;
};

TEST(RandomCharts, KeepTheirTextsApartAndInThePicture) {
    const int wanted = qEnvironmentVariableIntValue("CHART_RANDOM_CHARTS"), charts = wanted > 0 ? wanted : 2000;
    const int first = qEnvironmentVariableIntValue("CHART_RANDOM_SEED");
    std::size_t texts = 0;
    for (int i = 0; i < charts; ++i) {
        BaseChart* chart = Maker(static_cast<unsigned>(first + i)).make();
        const std::string fault = overlap::faultOf(chart, texts);
        EXPECT_EQ(fault, "") << "chart " << first + i;
        CBaseChart_destroy(chart);
    }
    EXPECT_GT(texts, static_cast<std::size_t>(charts) * 5) << "charts without texts tell nothing";
}
} // namespace
