// Meters and polar charts with the host's data: what reaches the drawing, and clear answers to what is no data.

#include "tests/expect.h"
#include "tests/recorder/recorder.h"
#include <chartrender/chartrender.h>
#include <cmath>
#include <gmock/gmock.h>

namespace {
using recorder::Recording;
using testing::Contains;
using testing::ElementsAre;
using Lines = std::vector<std::string>;

Lines linesOf(const Recording& recording, const char* part) {
    Lines found;
    for (const std::string& line : recording.Lines())
        if (line.find(part) != std::string::npos) found.push_back(line);
    return found;
}

template <class Meter> Meter threePointers() {
    Meter meter;
    for (const double value : {10, 20, 30}) {
        CMeterPointer pointer;
        pointer.m_value = value;
        meter.m_pointers.push_back(pointer);
    }
    return meter;
}

template <class Meter>
using RenderMeter = ChartRenderResult (*)(const Meter&, const CChartLayout&, const CMeterData&, ChartPictureFormat,
                                          CChartPicture&);

template <class Meter> void expectValuesOfTheFirstPointers(RenderMeter<Meter> render) {
    const double values[] = {55, NAN, 1, 2};
    CMeterData data;
    data.values = values;
    data.count = 2;
    CChartPicture picture;
    const auto result = [&] {
        return render(threePointers<Meter>(), CChartLayout(), data, ChartPictureFormat::Bmp, picture);
    };
    const Recording recording;
    EXPECT_EQ(result(), ChartRenderResult::Ok);
    EXPECT_THAT(linesOf(recording, "addPointer"), ElementsAre("CBaseMeter_addPointer(BaseMeter#1, 55, 0, 0)",
                                                              "CBaseMeter_addPointer(BaseMeter#1, nan, 0, 0)",
                                                              "CBaseMeter_addPointer(BaseMeter#1, 30, 0, 0)"));
    EXPECT_EQS((recording.Count("CLegendBox_addKey"), 0), (recording.Lines().back(), "CBaseChart_destroy(BaseChart#1)"),
               (picture.Empty(), false));
    for (const int count : {-1, 4}) {
        data.count = count;
        EXPECT_EQ(result(), ChartRenderResult::BadData) << count;
        EXPECT_TRUE(picture.Empty());
    }
    data.count = 1;
    data.values = nullptr;
    EXPECT_EQ(result(), ChartRenderResult::BadData);
    data.count = 0;
    EXPECT_EQ(result(), ChartRenderResult::Ok);
    --data.size;
    EXPECT_EQ(result(), ChartRenderResult::BadData);
}

TEST(RenderMeters, PointWhereTheHostSays) {
    expectValuesOfTheFirstPointers<CAngularMeter>(RenderAngularMeter);
    expectValuesOfTheFirstPointers<CLinearMeter>(RenderLinearMeter);
}

CPolarChart threeLayers() {
    CPolarChart chart;
    for (const int type : {0, 2, 0}) {
        CPolarLayer* layer = CPolarLayerMgr::CreateLayer(type);
        layer->m_name = "L";
        layer->m_useSymbolScale = true;
        chart.m_layers.AddLayer(layer);
    }
    return chart;
}

const double kRadii[] = {4.5, 2, 3};
const double kAngles[] = {0, 120, 240};
const double kSizes[] = {7, 8, 9};

ChartRenderResult render(const CPolarChartData& data, CChartPicture& picture) {
    return RenderPolarChart(threeLayers(), CChartLayout(), data, ChartPictureFormat::Bmp, picture);
}

TEST(RenderPolar, ShowsTheLayersThatHaveData) {
    CPolarLayerData layers[2]; // in any order; layer 1 is not among them
    layers[0].layer = 2;
    layers[0].radii = kRadii;
    layers[0].count = 2;
    layers[1].radii = kRadii;
    layers[1].angles = kAngles;
    layers[1].symbolSizes = kSizes;
    layers[1].count = 3;
    CPolarChartData data;
    data.layers = layers;
    data.layerCount = 2;
    const Recording recording;
    CChartPicture picture;
    EXPECT_EQ(render(data, picture), ChartRenderResult::Ok);
    EXPECT_THAT(linesOf(recording, ", ["),
                ElementsAre(R"(CPolarChart_addLineLayer(PolarChart#1, [4.5, 2, 3], 0x0033ff33, "L"))",
                            "CPolarLayer_setAngles(PolarLayer#1, [0, 120, 240])",
                            "CPolarLayer_setSymbolScale(PolarLayer#1, [7, 8, 9], 0)",
                            R"(CPolarChart_addLineLayer(PolarChart#1, [4.5, 2], 0x0033ff33, "L"))"));
    EXPECT_EQS((recording.Count("CRanTable_create"), 0), (picture.Empty(), false));
}

TEST(RenderPolar, WithoutDataIsAGrid) {
    const Recording recording;
    CChartPicture picture;
    EXPECT_EQ(render(CPolarChartData(), picture), ChartRenderResult::Ok);
    EXPECT_THAT(recording.Lines(), Contains("CAxis_setLinearScale(Axis#1, 0, 100, 10, 0)"));
    EXPECT_EQ(recording.Count("CLegendBox_addKey"), 0);
}

TEST(RenderPolar, ReadsLongerEntriesOfANewerHeader) {
    struct Longer {
        CPolarLayerData entry;
        double more = 1;
    } layers[2];
    for (int i : {0, 1}) {
        layers[i].entry.size = sizeof(Longer);
        layers[i].entry.layer = i;
        layers[i].entry.radii = kRadii + i;
        layers[i].entry.count = 1;
    }
    CPolarChartData data;
    data.layers = &layers[0].entry;
    data.layerCount = 2;
    const Recording recording;
    CChartPicture picture;
    EXPECT_EQ(render(data, picture), ChartRenderResult::Ok);
    EXPECT_THAT(linesOf(recording, ", [").back(), testing::HasSubstr("addAreaLayer(PolarChart#1, [2]"));
}

TEST(RenderPolar, AnswersBadDataWithoutAPicture) {
    CPolarLayerData good;
    good.radii = kRadii;
    good.count = 3;
    using Edit = void (*)(CPolarChartData&, CPolarLayerData(&)[2]);
    const Edit edits[] = {
        [](CPolarChartData& data, CPolarLayerData(&)[2]) { --data.size; },
        [](CPolarChartData& data, CPolarLayerData(&)[2]) { data.layerCount = -1; },
        [](CPolarChartData& data, CPolarLayerData(&)[2]) { data.layers = nullptr; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { --layers[0].size; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[0].size = 1 << 30; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { ++layers[1].size; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[0].layer = 3; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[0].layer = -1; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[0].layer = 1; }, // twice
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[1].count = -1; },
        [](CPolarChartData&, CPolarLayerData(&layers)[2]) { layers[1].radii = nullptr; },
    };
    for (const Edit edit : edits) {
        CPolarLayerData layers[2] = {good, good};
        layers[1].layer = 1;
        CPolarChartData data;
        data.layers = layers;
        data.layerCount = 2;
        CChartPicture picture;
        EXPECT_EQ(render(data, picture), ChartRenderResult::Ok);
        edit(data, layers);
        EXPECT_EQ(render(data, picture), ChartRenderResult::BadData) << (&edit - edits);
        EXPECT_TRUE(picture.Empty());
    }
}
} // namespace
