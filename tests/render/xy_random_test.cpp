// XY charts of random models: whatever the fields hold, drawing answers with a picture or with none. The
// sanitizers say whether it did so well; a longer run is asked for by an environment variable.

#include "tests/render/xy_calls.h"
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

class Dice {
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}
    int Int(int from, int to) { return std::uniform_int_distribution(from, to)(m_engine); }
    bool Rarely() { return Int(0, 9) == 0; }
    bool Bool() { return Int(0, 1) == 1; }
    /// A value of an enumeration, now and then none of them.
    int Choice(int most) {
        const int odd[] = {-1, most + 1, 99, std::numeric_limits<int>::min()};
        return Rarely() ? odd[Int(0, 3)] : Int(0, most);
    }
    int Pixels() {
        const int odd[] = {-1, 20000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
        return Rarely() ? odd[Int(0, 3)] : Int(0, 40);
    }
    double Real() {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        const double odd[] = {std::nan(""), infinity, -infinity, 1.7e308, -1e300, 5e-324};
        return Rarely() ? odd[Int(0, 5)] : Int(-100, 100) / 8.0;
    }
    /// A chart time; some are before 1900, after 9999, or none.
    double Time() {
        const double odd[] = {-1, 0, CChart_chartTime(1899, 12, 31, 0, 0, 0),
                              CChart_chartTime(9999, 12, 31, 23, 59, 59) + 1e9, std::nan("")};
        return Rarely() ? odd[Int(0, 4)] : CChart_chartTime(Int(1990, 2030), Int(1, 12), Int(1, 28), 0, 0, 0);
    }
    const char* Text() {
        const char* texts[] = {"", "{value}", "name", "{value|mmm}", "<*br*>", "two\nlines", "{", "-"};
        return texts[Int(0, 7)];
    }
    void Fill(CChartColor& color) {
        color.m_type = Choice(2);
        color.m_color = Rarely() ? 0xffff0000U + static_cast<unsigned>(Pixels())
                                 : static_cast<unsigned>(Int(0, 0xffffff)) | (Bool() ? 0 : 0x80000000U);
        color.m_direction = Pixels();
    }
    void Fill(CChartRaisedEffect& effect) {
        effect.m_effectType = Choice(4);
        effect.m_direction = Pixels();
        effect.m_value = Pixels();
    }
    void Fill(CChartFont& font) { font.m_size = Rarely() ? Real() : Int(6, 20); }

private:
    std::mt19937 m_engine;
};

void fillTitle(Dice& dice, CXYChartAxisTitle& title) {
    title.m_show = dice.Bool();
    title.m_text = dice.Text();
    dice.Fill(title.m_font);
    dice.Fill(title.m_backColor);
    dice.Fill(title.m_effect);
    title.m_useAngle = dice.Bool();
    title.m_angle = dice.Real();
    title.m_vertical = dice.Rarely();
    title.m_usePosition = dice.Bool();
    title.m_alignment = dice.Choice(13);
    title.m_gap = dice.Pixels();
}

void fillAxis(Dice& dice, CXYChartAxis& axis) {
    axis.m_location = dice.Choice(9);
    axis.m_reverse = dice.Bool();
    for (std::int32_t* pixels :
         {&axis.m_offset, &axis.m_width, &axis.m_marginTop, &axis.m_marginBottom, &axis.m_majorStep,
          &axis.m_minorStep, &axis.m_majorOffset, &axis.m_minorOffset, &axis.m_majorLength,
          &axis.m_minorLength, &axis.m_majorSpacing, &axis.m_minorSpacing})
        *pixels = dice.Bool() ? *pixels : dice.Pixels();
    axis.m_scaleType = dice.Choice(3);
    for (double* real :
         {&axis.m_topExtension, &axis.m_bottomExtension, &axis.m_zeroAffinity, &axis.m_lowerLimit,
          &axis.m_upperLimit, &axis.m_majorTickInc, &axis.m_minorTickInc, &axis.m_dateMajorTickInc,
          &axis.m_dateMinorTickInc, &axis.m_labelAngle, &axis.m_syncSlope})
        *real = dice.Bool() ? *real : dice.Real();
    axis.m_dateLowerLimit = dice.Time();
    axis.m_dateUpperLimit = dice.Time();
    fillTitle(dice, axis.m_title);
    dice.Fill(axis.m_color);
    axis.m_labelFormat = dice.Text();
    dice.Fill(axis.m_labelFont);
    dice.Fill(axis.m_labelBackColor);
    axis.m_labelVertical = dice.Rarely();
    axis.m_filter1 = dice.Choice(20000);
    axis.m_format1 = dice.Text();
    axis.m_filter2 = dice.Pixels();
    axis.m_format2 = dice.Text();
    axis.m_syncKind = static_cast<unsigned char>(dice.Bool() ? 16 : dice.Int(0, 17));
}

void fillBars(Dice& dice, CXYBarLayer& bars) {
    bars.m_shape = dice.Choice(10);
    bars.m_combineMethod = dice.Choice(4);
    bars.m_aggregateLabel = dice.Bool();
    bars.m_labelForEachSeg = dice.Bool();
    bars.m_useOverlap = dice.Bool();
    bars.m_firstOnTop = dice.Bool();
    bars.m_overlapRatio = dice.Real();
    bars.m_barGap = dice.Real();
    bars.m_subBarGap = dice.Real();
    bars.m_useBorderColor = dice.Bool();
    dice.Fill(bars.m_effect);
    for (int i = dice.Int(-2, 9); i > 0; --i) {
        CChartColor color;
        dice.Fill(color);
        bars.m_dataSetColors.push_back(color);
    }
}

void fillLayer(Dice& dice, CXYChartLayer& layer) {
    layer.m_seed = dice.Rarely() ? std::numeric_limits<int>::max() : dice.Int(-5, 1000);
    layer.m_name = dice.Text();
    layer.m_yAxisKind = static_cast<unsigned char>(dice.Bool() ? 2 : dice.Int(0, 20));
    if (auto* bars = dynamic_cast<CXYBarLayer*>(&layer))
        fillBars(dice, *bars);
    if (auto* line = dynamic_cast<CXYLineLayer*>(&layer)) {
        line->m_lineType = dice.Choice(2);
        line->m_lineWidth = dice.Pixels();
        line->m_symbolType = dice.Choice(9);
        line->m_symbolSize = dice.Pixels();
        dice.Fill(line->m_fillColor);
    }
    if (auto* points = dynamic_cast<CXYScatterLayer*>(&layer)) {
        points->m_symbolType = dice.Choice(9);
        points->m_bubble = dice.Bool();
        points->m_symbolSize = dice.Pixels();
        points->m_useSymbolColor = dice.Bool();
    }
    if (auto* areas = dynamic_cast<CXYAreaLayer*>(&layer)) {
        areas->m_combineMethod = dice.Choice(4);
        areas->m_useAreaColor = dice.Bool();
        dice.Fill(areas->m_areaColor);
    }
    if (auto* tasks = dynamic_cast<CXYGanttLayer*>(&layer)) {
        for (int i = dice.Int(-2, 9); i > 0; --i) {
            CBoxGroup group;
            group.m_name = dice.Text();
            dice.Fill(group.m_color);
            tasks->m_groups.push_back(group);
        }
    }
    if (dice.Rarely())
        layer.m_type = dice.Bool() ? -1 : 9;
}

void fillFrame(Dice& dice, CXYChart& chart) {
    for (CChartColor* color : {&chart.m_majorHGridColor, &chart.m_majorVGridColor, &chart.m_minorHGridColor,
                               &chart.m_minorVGridColor, &chart.m_lineColor, &chart.m_edgeColor,
                               &chart.m_backColor, &chart.m_altColor, &chart.m_q1Color})
        dice.Fill(*color);
    chart.m_majorHGridWidth = dice.Pixels();
    chart.m_minorVGridWidth = dice.Pixels();
    chart.m_lineWidth = dice.Pixels();
    chart.m_useBackground = dice.Bool();
    chart.m_backgroundType = dice.Choice(2);
    chart.m_swapXY = dice.Rarely();
    chart.m_useX2Axis = dice.Bool();
    chart.m_useY2Axis = dice.Bool();
    chart.m_show3D = dice.Bool();
    chart.m_depth = dice.Pixels();
    chart.m_zGap = dice.Pixels();
    for (CXYChartAxis* axis : {&chart.m_xAxis, &chart.m_yAxis, &chart.m_x2Axis, &chart.m_y2Axis})
        if (dice.Bool())
            fillAxis(dice, *axis);
}

/// Layers and axes that name each other, themselves in a circle, or axes that are gone.
void fillRandomly(Dice& dice, XYPreview& view, const CXYChartAxis* gone) {
    CXYChart& chart = view.Chart();
    fillFrame(dice, chart);
    const int axes = dice.Int(0, 4);
    for (int i = 0; i < axes; ++i)
        fillAxis(dice, view.AddAxis());
    const auto anyAxis = [&]() -> CXYChartAxis* {
        CXYChartAxis* axis = chart.m_axes.GetSafeAxis(dice.Int(-1, axes - 1));
        return dice.Rarely() ? const_cast<CXYChartAxis*>(gone) : axis;
    };
    for (int i = 0; i < axes; ++i)
        chart.m_axes.GetAxis(i)->m_syncAxis = anyAxis();
    chart.m_x2Axis.m_syncAxis = anyAxis();
    for (int i = dice.Int(0, 4); i > 0; --i) {
        CXYChartLayer& layer = view.AddLayer(dice.Int(0, 8));
        fillLayer(dice, layer);
        layer.m_yAxis = anyAxis();
    }
    CChartLayout& layout = view.Layout();
    layout.m_width = dice.Rarely() ? dice.Pixels() : dice.Int(60, 300);
    layout.m_height = dice.Rarely() ? dice.Pixels() : dice.Int(60, 300);
    if (dice.Bool())
        layout.m_xyPlotArea.m_left = dice.Pixels();
    else
        layout.SetChartSize(std::clamp(layout.m_width, 0, 500), std::clamp(layout.m_height, 0, 500));
    layout.m_showLabel = dice.Bool();
    layout.m_labelAngle = dice.Rarely() ? dice.Real() : 0;
    layout.m_labelFormat = dice.Text();
}

TEST(XYRandom, EveryModelIsAnswered) {
    const char* wanted = std::getenv("CHART_RANDOM_MODELS");
    const int count = wanted ? std::atoi(wanted) : 150;
    for (int i = 0; i < count; ++i) {
        const CXYChartAxis gone;
        Dice dice(static_cast<unsigned>(i));
        XYPreview view;
        fillRandomly(dice, view, &gone);
        if (i % 5 == 0) {
            view.m_singleLayerMode = true;
            view.m_previewLayer = view.Chart().m_layers.empty() ? nullptr : view.Chart().m_layers.GetLayer(0);
        }
        DrawXYChart(view);
        const int width = view.Layout().m_width, height = view.Layout().m_height;
        const bool possible = width >= 1 && height >= 1 && width <= 16384 && height <= 16384;
        ASSERT_EQ(view.m_picture.Empty(), !possible) << i;
    }
}

} // namespace
