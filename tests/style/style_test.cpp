// Looks as texts: there and back, patches, what newer versions say, and texts that are none.

#include "tests/expect.h"
#include "tests/model/models.h"
#include <chartstyle/chartstyle.h>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>

namespace {
std::string Text(const CChartStyleText& text) { return {text.Data(), text.Size()}; }

template <class Chart>
ChartStyleResult Read(const std::string& text, Chart& chart, CChartLayout* layout = nullptr,
                      std::string* report = nullptr) {
    CChartStyleText remarks;
    const ChartStyleResult result = ReadChartStyle(text.data(), text.size(), chart, layout, remarks);
    if (report) *report = Text(remarks);
    return result;
}

template <class Chart> std::string Write(const Chart& chart, const CChartLayout* layout = nullptr) {
    CChartStyleText text;
    EXPECT_TRUE(WriteChartStyle(chart, layout, text));
    return Text(text);
}

template <class Chart> class RoundTrip : public testing::Test {};
using Charts = testing::Types<CXYChart, CPieChart, CFinanceChart, CPolarChart, CAngularMeter, CLinearMeter>;
TYPED_TEST_SUITE(RoundTrip, Charts);

const char* const kPie = R"({"chartStyle": 1, "kind": "pie",
 "chart": {"depth3D": 7,
  "sectors": [{"text": "a"}, {"text": "b", "color": {"color": "0x80112233"}}]}})";
} // namespace

TYPED_TEST(RoundTrip, GivesEveryFieldBack) {
    const char* models = std::getenv("CHART_RANDOM_MODELS"); // a long run by hand
    for (unsigned seed = 0; seed < (models ? std::strtoul(models, nullptr, 10) : 100); ++seed) {
        const TypeParam chart = models::Random(seed).Make<TypeParam>();
        const auto layout = models::Random(seed + 1).Make<CChartLayout>();
        TypeParam other = models::Random(seed + 2).Make<TypeParam>();
        CChartLayout otherLayout;
        std::string report;
        ASSERT_EQ(Read(Write(chart, &layout), other, &otherLayout, &report), ChartStyleResult::Ok) << report;
        ASSERT_EQ(report, "");
        const auto differences = model::Differences(chart, other);
        ASSERT_TRUE(differences.empty()) << seed << ' ' << differences[0].path << ' ' << differences[0].from << ' '
                                         << differences[0].to;
        ASSERT_TRUE(model::Differences(layout, otherLayout).empty()) << seed;
    }
}

TEST(Style, IsAPatchWhereItIsShort) {
    CPieChart pie;
    pie.m_show3D = true;
    pie.m_sectors.push_back({});
    ASSERT_EQ(Read(kPie, pie), ChartStyleResult::Ok);
    EXPECT_EQS((pie.m_show3D, true), (pie.m_depth3D, 7));
    ASSERT_EQ(pie.m_sectors.size(), 2);
    EXPECT_STREQ(pie.m_sectors[1].m_text.data(), "b");
    EXPECT_EQ(pie.m_sectors[1].m_color.m_color, 0x80112233U);

    CXYChart chart;
    chart.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    chart.m_y2Axis.m_syncAxis = chart.m_axes.GetAxis(0);
    ASSERT_EQ(Read(R"({"chartStyle":1,"kind":"xy","chart":{"axes":[{},{"syncAxis":0}],
                      "layers":[{"type":"line","yAxis":1},{"type":8}]}})",
                   chart),
              ChartStyleResult::Ok);
    EXPECT_EQ(chart.m_y2Axis.m_syncAxis, nullptr) << "its axis was replaced";
    EXPECT_EQS((chart.m_axes.GetAxis(1)->m_syncAxis, chart.m_axes.GetAxis(0)),
               (chart.m_layers.GetLayer(0)->m_yAxis, chart.m_axes.GetAxis(1)),
               (chart.m_layers.GetLayer(1)->GetType(), 8));
}

TEST(Style, ReportsWhatItDoesNotKnowAndKeepsItInAMerge) {
    const std::string newer = R"({"chartStyle": 2, "kind": "pie", "made": "later",
 "chart": {"depth3D": 3, "glow": 5,
  "sectors": [{"text": "a", "rim": [1]}]}})";
    CPieChart pie;
    std::string report;
    ASSERT_EQ(Read(newer, pie, nullptr, &report), ChartStyleResult::Ok);
    EXPECT_EQ(pie.m_depth3D, 3);
    EXPECT_EQ(report, "line 1: chartStyle: version 2 is newer than this library, which reads what it knows\n"
                      "line 3: chart.sectors[0].rim: unknown\n"
                      "line 2: chart.glow: unknown\n");
    pie.m_depth3D = 9;
    CChartStyleText merged;
    ASSERT_TRUE(MergeChartStyle(newer.data(), newer.size(), pie, nullptr, merged));
    CPieChart again;
    ASSERT_EQ(Read(Text(merged), again, nullptr, &report), ChartStyleResult::Ok);
    EXPECT_EQ(again.m_depth3D, 9);
    EXPECT_NE(report.find("chart.glow"), std::string::npos);
    EXPECT_NE(report.find("chart.sectors[0].rim"), std::string::npos);
    EXPECT_NE(Text(merged).find("later"), std::string::npos);
}

TEST(Style, ChangesNothingWhereAnythingIsWrong) {
    const std::string deep = R"({"chartStyle":1,"kind":"pie","x":)" + std::string(40, '[') + std::string(40, ']') + '}';
    std::string items;
    for (int i = 0; i <= 10000; ++i) items += i ? ",{}" : "{}";
    const struct {
        std::string text, report;
    } cases[] = {
        {"", "line 1: not a JSON object\n"},
        {"[1]", "line 1: not a JSON object\n"},
        {"{\n\"a\":\n}", "line 3: not a JSON object\n"},
        {R"({"kind":"pie"})", "line 1: : no chart style\n"},
        {deep, "line 1: nested deeper than 32\n"},
        {std::string(17 * 1024 * 1024, ' '), "line 1: longer than 16 MB\n"},
        {R"({"chartStyle":1,"kind":"pie","chart":{"sectors":[)" + items + "]}}",
         "line 1: chart.sectors: more than 10,000 items\n"},
        {"{\"chartStyle\":1,\"kind\":\"pie\",\"chart\":{\"depth3D\":2,\n\"sectors\":[{},\n{\"color\":7}]}}",
         "line 3: chart.sectors[1].color: expected an object\n"},
        {R"({"chartStyle":1,"kind":"pie","chart":{"depth3D":1.5}})",
         "line 1: chart.depth3D: expected a whole number\n"},
        {R"({"chartStyle":1,"kind":"pie","chart":{"labelLayout":"ring"}})",
         "line 1: chart.labelLayout: expected one of its words or a number\n"},
        {R"({"chartStyle":1,"kind":"pie","chart":{"depth3D":2},"layout":{"backColor":{"color":"red"}}})",
         "line 1: layout.backColor.color: expected a colour, \"0xAARRGGBB\"\n"},
    };
    for (const auto& c : cases) {
        CPieChart pie;
        CChartLayout layout;
        std::string report;
        EXPECT_EQ(Read(c.text, pie, &layout, &report), ChartStyleResult::BadText) << c.report;
        EXPECT_EQS((report, c.report), (pie.m_depth3D, 1), (pie.m_sectors.size(), 0));
    }
    CXYChart chart;
    EXPECT_EQS(
        (Read(kPie, chart), ChartStyleResult::OtherKind),
        (Read(R"({"chartStyle":1,"kind":"xy","chart":{"layers":[{"name":"?"}]}})", chart), ChartStyleResult::BadText),
        (ChartStyleKindOf(kPie, std::strlen(kPie)), ChartStyleKind::Pie),
        (ChartStyleKindOf(nullptr, 0), ChartStyleKind::None));
}

// Texts with bytes changed, cut and doubled: any answer, but no fault, and a bad one leaves the chart alone.
TEST(Style, SurvivesBrokenTexts) {
    std::mt19937 random(7);
    const CChartLayout plain;
    for (unsigned seed = 0; seed < 30; ++seed) {
        const auto chart = models::Random(seed).Make<CXYChart>();
        const std::string good = Write(chart, &plain);
        for (int i = 0; i < 30; ++i) {
            std::string text = good;
            for (unsigned n = 1 + random() % 4; n > 0; --n)
                text[random() % text.size()] =
                    static_cast<char>(random() % 4 == 0 ? random() : "{}[]\",:0a\\ "[random() % 11]);
            if (random() % 4 == 0) text.resize(random() % text.size());
            CXYChart read;
            const auto before = model::Values(read);
            if (Read(text, read) != ChartStyleResult::Ok)
                ASSERT_TRUE(model::Differences(before, model::Values(read)).empty());
        }
    }
}

// The first version's text, as it will be read for ever.
TEST(Style, ReadsTheFirstVersion) {
    std::ostringstream text;
    text << std::ifstream(STYLE_FOLDER "/version1.json").rdbuf();
    CXYChart chart;
    CChartLayout layout;
    std::string report;
    ASSERT_EQ(Read(text.str(), chart, &layout, &report), ChartStyleResult::Ok) << report;
    EXPECT_EQS((report, ""), (layout.m_titles.size(), 1), (chart.m_layers.GetLayerCount(), 2),
               (chart.m_layers.GetLayer(1)->m_yAxis, chart.m_axes.GetAxis(0)),
               (chart.m_axes.GetAxis(0)->m_scaleType, 2),
               (static_cast<CXYBarLayer*>(chart.m_layers.GetLayer(0))->m_combineMethod, 1),
               (Write(chart, &layout), text.str()));
}
