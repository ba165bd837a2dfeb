// Every operation of the surface, by the table of rows.h and by what it gives back.

#include "tests/engine/surface/rows.h"
#include "tests/expect.h"
#include <QTemporaryDir>
#include <cmath>
#include <fstream>
#include <gmock/gmock.h>
#include <set>
#include <sstream>
#include <string>
#include <tuple>

namespace surface {
const char* imageFile() {
    static const QTemporaryDir folder;
    static const std::string path = [] {
        QImage image(20, 10, QImage::Format_RGB32);
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 20; ++x) image.setPixel(x, y, static_cast<unsigned>(x < 10 ? kBrown : kBlue));
        const QString file = folder.filePath("image.png");
        image.save(file);
        return file.toStdString();
    }();
    return path.c_str();
}

namespace {
std::vector<Row> allRows() {
    std::vector<Row> rows;
    for (const auto& some : {chartRows(), axisRows(), layerRows(), roundRows()})
        rows.insert(rows.end(), some.begin(), some.end());
    return rows;
}

TEST(Operations, ChangeThePictureWhereTheirArgumentsSay) {
    for (const Row& row : allRows()) {
        for (const bool second : {false, true}) {
            Scene scene;
            row.scene(scene);
            const Shot before(scene.chart);
            row.set(scene, second);
            const Shot after(scene.chart);
            EXPECT_TRUE(row.shows(after, second)) << row.operation << ", value " << second;
            EXPECT_FALSE(row.shows(after, !second)) << row.operation << ", the other value, with " << second;
        }
    }
}

using Doubles = std::vector<double>;

Doubles column(RanTable* table, int index) {
    const double* data = nullptr;
    int count = 0;
    CRanTable_getCol(table, index, &data, &count);
    return {data, data + count};
}

TEST(Operations, OfRandomTablesMakeDates) {
    RanTable* table = CRanTable_create(7, 1, 2);
    const double friday = CChart_chartTime(2024, 3, 8, 0, 0, 0), day = 86400;
    for (const bool weekdays : {true, false}) {
        CRanTable_setDateCol(table, 0, friday, day, weekdays);
        EXPECT_EQ(column(table, 0), (Doubles{friday, friday + (weekdays ? 3 : 1) * day}));
    }
    CRanTable_destroy(table);
}

TEST(Operations, ThatAnswerSayWhatWasAsked) {
    EXPECT_EQ(CChart_getChartYMD(CChart_chartTime(2024, 2, 29, 23, 59, 58)), 20240229);
    EXPECT_EQ(CChart_chartTime(2024, 2, 29, 4, 5, 6) - CChart_chartTime(2024, 2, 29, 0, 0, 0), 4 * 3600 + 5 * 60 + 6);
    Scene s;
    bars(s);
    EXPECT_STREQ(CBaseChart_formatValue(s.chart, 1234.5, "{value|1,.}"), "1,234.5");
    for (const char* format : {"\xff", "\xc3", "{value|2\xe2\x82}", "{value|\xed\xa0\x80}", "a\xf4\x90\x80\x80{value"})
        EXPECT_TRUE(QUtf8StringView(CBaseChart_formatValue(s.chart, 1234.5, format)).isValidUtf8()) << format;
    EXPECT_EQ(CBaseChart_getLegend(s.chart), nullptr);
    LegendBox* legend = CBaseChart_addLegend(s.chart, 0, 0, true, nullptr, 8);
    EXPECT_EQ(CBaseChart_getLegend(s.chart), legend);
    Box* box = TextBox2Box(LegendBox2TextBox(legend));
    CBox_setSize(box, 30, 77);
    EXPECT_EQ(CBox_getHeight(box), 77);
    DrawArea* area = CBaseChart_getDrawArea(s.chart);
    EXPECT_EQS((CDrawArea_getWidth(area), 300), (CDrawArea_getHeight(area), 200));
    CDrawArea_destroy(area); // the chart's own stays
    EXPECT_EQ(CDrawArea_getWidth(area), 300);
    CLayer_setHTMLImageMap(s.layer, "url", "query", "more"); // a picture shows none of it
    EXPECT_EQ(Shot(s.chart).size(), QSize(300, 200));
}

template <class Target, class Source> void expectCast(Target* (*cast)(Source*), const char* name) {
    // A handle of the kind itself comes through unchanged: the first that the creator of the name gives.
    Scene scenes[6];
    axes(scenes[0]);
    pie(scenes[1]);
    polar(scenes[2]);
    roundMeter(scenes[3]);
    straightMeter(scenes[4]);
    scenes[5].chart = MultiChart2BaseChart(CMultiChart_create(10, 10, 0, 0, 0));
    Scene& xy = scenes[0];
    const double value[] = {1};
    TextBox* text = CBaseChart_addText(xy.chart, 0, 0, "", nullptr, 8, 0, 0, 0, false);
    Mark* mark = CAxis_addMark(xy.y, 1, 0, "", nullptr, 8);
    LineLayer* line = CXYChart_addLineLayer(xy.xy, value, 1, 0, nullptr, 0);
    BoxWhiskerLayer* box = CXYChart_addBoxLayer(xy.xy, value, 1, value, 1, 0, nullptr);
    HLOCLayer* prices = CXYChart_addHLOCLayer(xy.xy, value, 1, value, 1, value, 1, value, 1, 0);
    const double radius[] = {50};
    PolarSplineAreaLayer* splineArea = CPolarChart_addSplineAreaLayer(scenes[2].polar, radius, 1, 0, nullptr);
    const auto all =
        std::tuple(xy.xy, scenes[1].pie, scenes[2].polar, reinterpret_cast<MultiChart*>(scenes[5].chart),
                   scenes[3].meter, scenes[3].round, scenes[4].straight,
                   CXYChart_addBarLayer(xy.xy, value, 1, 0, nullptr, 0), line, CXYChart_addAreaLayer2(xy.xy, 1, 0),
                   CXYChart_addInterLineLayer(xy.xy, CLineLayer_getLine(line, 0), CMark_getLine(mark), 0, 0),
                   BoxWhiskerLayer2BaseBoxLayer(box), CXYChart_addSplineLayer(xy.xy, value, 1, 0, nullptr),
                   CXYChart_addStepLineLayer(xy.xy, value, 1, 0, nullptr), prices,
                   CXYChart_addCandleStickLayer(xy.xy, value, 1, value, 1, value, 1, value, 1, 0, 0, 0), box,
                   scenes[2].polarLine, CPolarChart_addAreaLayer(scenes[2].polar, radius, 1, 0, nullptr),
                   CPolarChart_addSplineLineLayer(scenes[2].polar, radius, 1, 0, nullptr), splineArea, text,
                   CBaseChart_addLegend(xy.chart, 0, 0, true, nullptr, 8), mark, TextBox2Box(text), CMark_getLine(mark),
                   CBaseMeter_addPointer(scenes[3].meter, 0, 0, 0), xy.chart);
    Source* source = std::get<Source*>(all);
    ASSERT_NE(source, nullptr) << name;
    EXPECT_EQ(static_cast<void*>(cast(source)), static_cast<void*>(source)) << name;
    EXPECT_EQ(cast(nullptr), nullptr) << name;
    // No object is of all kinds: the axis is of none that a cast takes.
    EXPECT_EQ(cast(reinterpret_cast<Source*>(xy.x)), nullptr) << name;
}

template <class Result, class... Args> void castIfOne(Result (*operation)(Args...), const char* name) {
    if constexpr (sizeof...(Args) == 1 && std::is_pointer_v<Result>) {
        if (std::string(name)[0] != 'C' || std::string(name).starts_with("CandleStick")) expectCast(operation, name);
    }
}

TEST(Operations, ThatCastGiveTheSameObject) {
#define OPERATION(name) castIfOne(&name, #name);
#include "operations.inc"
#undef OPERATION
}

TEST(Operations, AreAllInTheseTables) {
    std::stringstream called;
    for (const char* file : {"surface/operations_test.cpp", "surface/scenes.h", "multi/multi_chart_test.cpp"})
        called << std::ifstream(std::string(CHART_SOURCE "/tests/engine/") + file).rdbuf();
    std::set<std::string> named;
    for (const Row& row : allRows()) named.insert(row.operation);
    const auto isTested = [&](const std::string& name) {
        // Arrays and columns of random numbers are tested where indicators and samples are made of them.
        const bool other = name[0] != 'C' || name.ends_with("_create") || name.starts_with("CandleStick") ||
                           name.starts_with("CArrayMath") || name.starts_with("CRanTable");
        return other || named.contains(name) || called.str().find(name + "(") != std::string::npos;
    };
#define OPERATION(name) EXPECT_TRUE(isTested(#name)) << #name;
#include "operations.inc"
#undef OPERATION
}
} // namespace
} // namespace surface
