// XY charts of the host's data: what reaches the drawing library, and what does not fit.

#include "tests/render/calls.h"
#include <chartrender/chartrender.h>
#include <limits>

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kFirst[] = {1, 2, 3}, kSecond[] = {4, kNaN, 6}, kThird[] = {7, 8, 9}, kFourth[] = {10, 11, 12};

/// A chart of one layer, named "layer", with data for it.
struct Plot {
    explicit Plot(int type) {
        model.m_layers.AddLayer(CXYChartLayerMgr::CreateLayer(type));
        model.m_layers.GetLayer(0)->m_name = "layer";
        for (CXYSeriesData* set : {&sets[0], &sets[1]}) set->count = 3;
        sets[0].values = kFirst;
        sets[1].values = kSecond;
        sets[1].name = "K\xc3\xb6ln";
        layer.count = data.rowCount = 3;
        data.layers = &layer;
        data.layerCount = 1;
    }
    void UseSets() {
        layer.series = sets;
        layer.seriesCount = 2;
    }
    ChartRenderResult Render(CChartPicture& picture) const {
        return RenderXYChart(model, layout, data, ChartPictureFormat::Bmp, picture);
    }

    CXYChart model;
    CChartLayout layout;
    CXYSeriesData sets[2];
    CXYTaskData tasks[3] = {{.row = 2, .start = 1, .end = 4}, {.row = 0, .start = 2, .end = 3}, {.row = 2}};
    CXYLayerData layer, twice[2];
    CXYChartData data;
};

/// A kind of layer: how its data are told, and the calls that hand them on, in this order.
struct Case {
    const char* name;
    int type;
    void (*tell)(Plot& plot);
    const char* calls;
};

class XYData : public testing::TestWithParam<Case> {};

TEST_P(XYData, ReachesTheLayer) {
    Plot plot(GetParam().type);
    GetParam().tell(plot);
    const recorder::Recording recording;
    CChartPicture picture;
    ASSERT_EQ(plot.Render(picture), ChartRenderResult::Ok);
    std::string calls;
    for (const std::string& line : recording.Lines()) calls += line + '\n';
    expectCalls(calls, GetParam().calls, "CRanTable_create CBaseChart_addLine( CLegendBox_addKey");
}

#define TELL(...) [](Plot& plot) { __VA_ARGS__; }

void addGroups(CXYChartLayer* layer) {
    auto& groups = static_cast<CXYGanttLayer*>(layer)->m_groups;
    for (const char* name : {"a", "b", "c"}) {
        CBoxGroup group;
        group.m_name = name;
        group.m_color.m_color = static_cast<std::uint32_t>(groups.size());
        groups.push_back(group);
    }
}

CChartColor colorFive() {
    CChartColor color;
    color.m_color = 5;
    return color;
}

const char* const kNames[] = {"a{b\\", nullptr, "K\xc3\xb6ln"};

const Case cases[] = {
    {"Bars", 0,
     TELL(plot.UseSets(),
          static_cast<CXYBarLayer*>(plot.model.m_layers.GetLayer(0))->m_dataSetColors.push_back(colorFive())),
     R"(CLayer_addDataSet(Layer#1, [1, 2, 3], 5, "layer")...CLayer_addDataSet(Layer#1, [4, nan, 6], -1, "Köln"))"},
    {"Lines", 1, TELL(plot.UseSets(), plot.layer.x = kFourth),
     R"(CXYChart_addLineLayer(XYChart#1, [1, 2, 3], 0, "layer", 0)...CLayer_addDataSet(Layer#1, [4, nan, 6], -1, "Köln")...
CLayer_getDataSet(Layer#1, 1)...CLayer_setXData(Layer#1, [10, 11, 12]))"},
    {"Points", 2, // which have places of their own
     TELL(plot.data.rowCount = 0, plot.layer.x = kFirst, plot.layer.y = kThird, plot.layer.bubbleSize = kFourth,
          static_cast<CXYScatterLayer*>(plot.model.m_layers.GetLayer(0))->m_bubble = true),
     R"(CXYChart_addScatterLayer(XYChart#1, [1, 2, 3], [7, 8, 9], "layer", 1, 5, -1, -1)...
CLineLayer_setSymbolScale(LineLayer#1, [10, 11, 12], 0, [], 0))"},
    {"Areas", 3, TELL(plot.UseSets()), R"(CLayer_addDataSet(Layer#1, [1, 2, 3], -1, "layer"))"},
    {"WhiskerBoxes", 4,
     TELL(plot.layer.top = kFirst, plot.layer.bottom = kSecond, plot.layer.maximum = kThird,
          plot.layer.middle = kFourth),
     "CXYChart_addBoxWhiskerLayer(XYChart#1, [1, 2, 3], [4, nan, 6], [7, 8, 9], [], [10, 11, 12], 0x009999ff, 204, "
     "-1)"},
    {"Boxes", 5, TELL(plot.layer.top = kFirst, plot.layer.bottom = kSecond),
     R"(CXYChart_addBoxLayer(XYChart#1, [1, 2, 3], [4, nan, 6], 65280, "layer"))"},
    {"PriceBars", 6,
     TELL(plot.layer.high = kFirst, plot.layer.low = kSecond, plot.layer.open = kThird, plot.layer.close = kFourth),
     "CXYChart_addHLOCLayer(XYChart#1, [1, 2, 3], [4, nan, 6], [7, 8, 9], [10, 11, 12], -1)"},
    {"Tasks", 7, // of three groups, with two tasks of the last
     TELL(plot.layer.tasks = plot.tasks, addGroups(plot.model.m_layers.GetLayer(0))),
     R"(CXYChart_addBoxWhiskerLayer(XYChart#1, [4, 3, 0], [1, 2, 0], [], [], [], -1, -65535, -1)...
CBoxWhiskerLayer_setBoxColors(BoxWhiskerLayer#1, [2, 0, 2], ["c", "a", ""])...CLayer_setXData(Layer#1, [2, 0, 2]))"},
    {"Candles", 8, TELL(plot.layer.high = kFirst, plot.layer.low = kSecond),
     "CXYChart_addCandleStickLayer(XYChart#1, [1, 2, 3], [4, nan, 6], [], [], 65280, 0x00ff0000, -65535)"},
    {"NamesOfRows", 1, TELL(plot.data.labels = kNames, plot.data.dates = kFirst), // names go first
     "CAxis_setLabels2(Axis#1, [0, 1, 2], \"{value|\ta\\\\{b\\\\\\\\\t\tK\xc3\xb6ln}\")...CAxis_setWidth(Axis#1, 1)"},
    {"DatesOfRows", 1, TELL(plot.UseSets(), plot.data.dates = kThird), "CAxis_setLabels2(Axis#1, [7, 8, 9], null)"},
    {"DatesOnAnAxisOfDates", 1, TELL(plot.UseSets(), plot.data.dates = kThird, plot.model.m_xAxis.m_scaleType = 3),
     "CLayer_setXData(Layer#1, [7, 8, 9])"},
};

INSTANTIATE_TEST_SUITE_P(RenderXY, XYData, testing::ValuesIn(cases), kNameOfCase);

TEST(RenderXY, DrawsNothingOfLayersWithoutData) {
    Plot plot(0);
    plot.layer.count = 0;
    const recorder::Recording recording;
    CChartPicture picture;
    EXPECT_EQ(plot.Render(picture), ChartRenderResult::Ok);
    plot.data.layerCount = 0;
    plot.data.layers = nullptr;
    EXPECT_EQS((plot.Render(picture), ChartRenderResult::Ok), (recording.Count("CXYChart_addBarLayer2"), 0));
    EXPECT_EQ(recording.Count("CAxis_setLinearScale"), 0); // no made-up scale
}

TEST(RenderXY, AnswersWhatDoesNotFitWithoutAPicture) {
    struct Fault {
        int type;
        void (*make)(Plot&);
    };
    const Fault faults[] = {
        {0, TELL(plot.data.rowCount = -1)},
        {0, TELL(plot.data.layerCount = -1)},
        {0, TELL(plot.data.layers = nullptr)},
        {0, TELL(plot.data.size = 8)},
        {0, TELL(plot.layer.layer = 1)},
        {0, TELL(plot.layer.layer = -1)},
        {0, TELL(plot.layer.size = 0)},
        {0, TELL(plot.layer.seriesCount = -1)},
        {0, TELL(plot.layer.series = nullptr)},
        {0, TELL(plot.sets[1].count = 2)},
        {0, TELL(plot.sets[0].values = nullptr)},
        {0, TELL(plot.sets[1].size -= 8)},
        {2, TELL(plot.layer.y = nullptr)},
        {4, TELL(plot.layer.top = plot.layer.bottom = nullptr)},
        {5, TELL(plot.layer.count = 2)},
        {7, TELL(plot.tasks[1].row = 3)},
        {8, TELL(plot.layer.count = -1)},
        {0, TELL(plot.twice[0] = plot.twice[1] = plot.layer, plot.data.layers = plot.twice, plot.data.layerCount = 2)},
    };
    for (const Fault& fault : faults) {
        SCOPED_TRACE(&fault - faults);
        Plot plot(fault.type);
        plot.UseSets();
        plot.layer.x = plot.layer.top = plot.layer.high = kFirst;
        plot.layer.y = plot.layer.bottom = plot.layer.low = kThird;
        plot.layer.tasks = plot.tasks;
        CChartPicture picture;
        ASSERT_EQ(plot.Render(picture), ChartRenderResult::Ok);
        fault.make(plot);
        EXPECT_EQS((plot.Render(picture), ChartRenderResult::BadData), (picture.Empty(), true));
    }
}
} // namespace
