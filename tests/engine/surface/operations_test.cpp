// Every operation of the surface, by the table of rows.h and by what it gives back.

#include "tests/engine/surface/rows.h"
#include "tests/expect.h"

#include <QTemporaryDir>
#include <cmath>
#include <gmock/gmock.h>
#include <set>
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

// ---- what gives numbers

using Doubles = std::vector<double>;
constexpr double kGap = CHART_NO_VALUE;

struct Maths {
    const char* operation;
    void (*apply)(ArrayMath* a);
    Doubles expected;
};

const double kOther[] = {2, 0, -1, 4};

TEST(Operations, OfArrayMathsPassOnTheirArguments) {
    // Of 4, 0, -2, 8; the second series is 2, 0, -1, 4.
    const Maths cases[] = {
        {"CArrayMath_add", [](ArrayMath* a) { CArrayMath_add(a, kOther, 4); }, {6, 0, -3, 12}},
        {"CArrayMath_add", [](ArrayMath* a) { CArrayMath_add(a, kOther, 3); }, {6, 0, -3, kGap}},
        {"CArrayMath_sub", [](ArrayMath* a) { CArrayMath_sub(a, kOther, 4); }, {2, 0, -1, 4}},
        {"CArrayMath_mul2", [](ArrayMath* a) { CArrayMath_mul2(a, 3); }, {12, 0, -6, 24}},
        {"CArrayMath_div2", [](ArrayMath* a) { CArrayMath_div2(a, 4); }, {1, 0, -0.5, 2}},
        {"CArrayMath_financeDiv", [](ArrayMath* a) { CArrayMath_financeDiv(a, kOther, 4, 7); }, {2, 7, 2, 2}},
        {"CArrayMath_abs", [](ArrayMath* a) { CArrayMath_abs(a); }, {4, 0, 2, 8}},
        {"CArrayMath_delta", [](ArrayMath* a) { CArrayMath_delta(a, 2); }, {kGap, kGap, -6, 8}},
        {"CArrayMath_movAvg", [](ArrayMath* a) { CArrayMath_movAvg(a, 2); }, {kGap, 2, -1, 3}},
        {"CArrayMath_movMax", [](ArrayMath* a) { CArrayMath_movMax(a, 2); }, {kGap, 4, 0, 8}},
        {"CArrayMath_movMin", [](ArrayMath* a) { CArrayMath_movMin(a, 3); }, {kGap, kGap, -2, -2}},
        {"CArrayMath_movStdDev", [](ArrayMath* a) { CArrayMath_movStdDev(a, 2); }, {kGap, 2, 1, 5}},
        {"CArrayMath_expAvg", [](ArrayMath* a) { CArrayMath_expAvg(a, 0.25); }, {4, 3, 1.75, 3.3125}},
        {"CArrayMath_selectGTZ", [](ArrayMath* a) { CArrayMath_selectGTZ(a, kOther, 4, 9); }, {4, 9, 9, 8}},
        {"CArrayMath_selectLTZ", [](ArrayMath* a) { CArrayMath_selectLTZ(a, nullptr, 0, 9); }, {9, 9, -2, 9}},
        {"CArrayMath_selectEQZ", [](ArrayMath* a) { CArrayMath_selectEQZ(a, kOther, 4, 5); }, {5, 0, 5, 5}},
    };
    for (const Maths& row : cases) {
        const double values[] = {4, 0, -2, 8};
        ArrayMath* array = CArrayMath_create(values, 4);
        row.apply(array);
        const double* data = nullptr;
        int count = 0;
        CArrayMath_result(array, &data, &count);
        EXPECT_EQ(Doubles(data, data + count), row.expected) << row.operation;
        CArrayMath_destroy(array);
    }
    ArrayMath* array = CArrayMath_create(kOther, 3);
    EXPECT_EQ(CArrayMath_max(array), 2);
    CArrayMath_destroy(array);
}

Doubles column(RanTable* table, int index) {
    const double* data = nullptr;
    int count = 0;
    CRanTable_getCol(table, index, &data, &count);
    return {data, data + count};
}

TEST(Operations, OfRandomTablesPassOnTheirArguments) {
    RanTable* table = CRanTable_create(7, 6, 50);
    RanTable* other = CRanTable_create(8, 6, 50);
    CRanTable_setCol(table, 1, 10, 20);
    CRanTable_setCol(other, 1, 10, 20);
    EXPECT_THAT(column(table, 1), testing::Each(testing::AllOf(testing::Ge(10), testing::Le(20))));
    EXPECT_EQ(column(table, 1).size(), 50u);
    EXPECT_NE(column(table, 1), column(other, 1));
    EXPECT_THAT(column(table, 0), testing::Each(0));
    const double friday = CChart_chartTime(2024, 3, 8, 0, 0, 0), day = 86400;
    CRanTable_setDateCol(table, 0, friday, day, true);
    EXPECT_EQ(column(table, 0)[1], friday + 3 * day);
    CRanTable_setDateCol(table, 0, friday, day, false);
    EXPECT_EQ(column(table, 0)[1], friday + day);
    CRanTable_setHLOCCols(table, 2, 100, -3, 5, 90, 110);
    const Doubles high = column(table, 2), low = column(table, 3), open = column(table, 4), close = column(table, 5);
    for (std::size_t i = 0; i < high.size(); ++i) {
        EXPECT_TRUE(90 <= low[i] && low[i] <= open[i] && open[i] <= high[i] && high[i] <= 110);
        EXPECT_TRUE(close[i] - open[i] >= -3 - 1e-9 && close[i] - open[i] <= 5 + 1e-9);
    }
    EXPECT_EQ(open[0], 100);
    CRanTable_destroy(table);
    CRanTable_destroy(other);
}

TEST(Operations, ThatAnswerSayWhatWasAsked) {
    EXPECT_EQ(CChart_getChartYMD(CChart_chartTime(2024, 2, 29, 23, 59, 58)), 20240229);
    EXPECT_EQ(CChart_chartTime(2024, 2, 29, 4, 5, 6) - CChart_chartTime(2024, 2, 29, 0, 0, 0), 4 * 3600 + 5 * 60 + 6);
    Scene s;
    bars(s);
    EXPECT_STREQ(CBaseChart_formatValue(s.chart, 1234.5, "{value|1,.}"), "1,234.5");
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

TEST(Operations, OfMultiChartsPlaceTheirCharts) {
    MultiChart* multi = CMultiChart_create(300, 200, kWhite, kNone, 0);
    Scene first, second;
    pie(first);
    CBaseChart_setSize(first.chart, 100, 80);
    CBaseChart_setBackground(first.chart, kPink, kNone, 0);
    bars(second);
    CBaseChart_setSize(second.chart, 60, 90);
    CBaseChart_setBackground(second.chart, kCyan, kNone, 0);
    Scene all;
    all.chart = MultiChart2BaseChart(multi);
    CMultiChart_addChart(multi, 20, 50, first.chart);
    CMultiChart_addChart(multi, 200, 10, second.chart);
    CBaseChart_addLegend(all.chart, 0, 160, false, nullptr, 8);
    const QRect keys(0, 160, 300, 40);
    const Shot shot(all.chart);
    EXPECT_TRUE(shot.is(20, 50, kPink) && !shot.inked(19, 50) && !shot.inked(20, 49) && shot.is(200, 99, kCyan) &&
                !shot.inked(200, 100));
    EXPECT_TRUE(shot.has(kBlue, keys)); // of the first one's sectors
    CMultiChart_setMainChart(multi, second.chart);
    const Shot named(all.chart);
    EXPECT_TRUE(named.has(kGreen, keys) && !named.has(kBlue, keys));
    CDataSet_setDataColor(CLayer_getDataSet(second.layer, 0), kBrown, -1, -1, -1);
    EXPECT_TRUE(Shot(all.chart).has(kBrown, keys)); // what changes in a chart is seen in the one that shows it
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
    std::set<std::string> named;
    for (const Row& row : allRows()) named.insert(row.operation);
    for (const char* number :
         {"CArrayMath_create",        "CArrayMath_destroy",    "CArrayMath_result",      "CArrayMath_max",
          "CArrayMath_add",           "CArrayMath_sub",        "CArrayMath_mul2",        "CArrayMath_div2",
          "CArrayMath_financeDiv",    "CArrayMath_abs",        "CArrayMath_delta",       "CArrayMath_movAvg",
          "CArrayMath_movMax",        "CArrayMath_movMin",     "CArrayMath_movStdDev",   "CArrayMath_expAvg",
          "CArrayMath_selectGTZ",     "CArrayMath_selectLTZ",  "CArrayMath_selectEQZ",   "CRanTable_create",
          "CRanTable_destroy",        "CRanTable_setCol",      "CRanTable_setDateCol",   "CRanTable_setHLOCCols",
          "CRanTable_getCol",         "CChart_chartTime",      "CChart_getChartYMD",     "CBaseChart_formatValue",
          "CBaseChart_getLegend",     "CBox_getHeight",        "CBaseChart_getDrawArea", "CDrawArea_getWidth",
          "CDrawArea_getHeight",      "CDrawArea_destroy",     "CLayer_setHTMLImageMap", "CMultiChart_addChart",
          "CMultiChart_setMainChart", "CBaseChart_makeChart2", "CBaseChart_destroy"})
        named.insert(number);
#define OPERATION(name)                                                                                                \
    if (std::string(#name)[0] == 'C' && !std::string(#name).ends_with("_create") &&                                    \
        !std::string(#name).starts_with("CandleStick"))                                                                \
        EXPECT_TRUE(named.contains(#name)) << #name;
#include "operations.inc"
#undef OPERATION
}

} // namespace

} // namespace surface
