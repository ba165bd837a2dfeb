#include "tests/driver/manners.h"
#include "tests/editors/pie/pie.h"

using namespace driver;

namespace {
CPieChart StartPie() {
    CPieChart pie = pie_test::PieOf({"one", "two", "three"});
    for (int i = 0; i < 3; ++i) pie.m_sectors[i].m_color.m_color = 0x3366CCU << i;
    pie.m_labelLayout = 0;
    pie.m_labelPosition = 20;
    pie.m_show3D = true;
    pie.m_depth3D = 10;
    pie.m_angle3D = 30;
    pie.m_useDonut = true;
    pie.m_edgeColor.m_color = 0x993300;
    pie.m_sectors[0].m_showExplode = true;
    pie.m_sectors[0].m_useDistance = true;
    pie.m_sectors[0].m_distance = 20;
    return pie;
}

const Properties kRows = {
    {"", "3D:", "Show 3D", "", "show3D=false"},
    {"", "3D:", "Shadow3D", "", "shadow3D=true"},
    {"", "3D:", "Depth:", "25", "depth3D=25", {1, 0}},
    {"", "3D:", "Angle:", "12.346", "angle3D=12.35", {10, 0, 90}},
    {"", "StartAngle:", "ClockWise", "", "clockWise=false"},
    {"", "StartAngle:", "StartAngle:", "-33.75", "startAngle=-33.75", {10}},
    {"", "Donut:", "Use DonutType", "", "useDonut=false"},
    {"", "Donut:", "Inner R(%):", "80", "donutInnerRadius=80", {10, 0, 100}},
    {"", "Label:", "Layout:", "SideLayout|CircleLayout", "labelLayout=circle"},
    {"", "Label:", "Position:", "-40", "labelPosition=-40"},
    {"", "Label:", "EdgeColor:", "Metal", "edgeColor.type=metal"},
    {"", "Label:", "JoinLineColor:", "Metal", "joinLineColor.type=metal"},
    {"", "Sector:", "Text:", "new", "sectors[0].text=new"},
    {"", "Sector:", "Show Explode", "", "sectors[0].showExplode=false"},
    {"", "Sector:", "Use Distance", "", "sectors[0].useDistance=false"},
    {"", "Sector:", "Distance:", "47", "sectors[0].distance=47", {10, 0}},
    {"", "Sector:", "Color:", "Metal", "sectors[0].color.type=metal"},
};
} // namespace

TEST(PieProperties, EachControlReachesItsField) {
    TestProperties(StartPie(), CChartLayout(), kRows);
    TestTableIsWhole(StartPie(), CChartLayout(), kRows);
}

TEST(PieProperties, KeepsItsManners) {
    TestWaysOut(pie_test::UnusualPie(), CChartLayout(), kRows);
    TestMemoryIsFlat(StartPie(), CChartLayout());
    TestAnybody(StartPie(), CChartLayout(), kRows);
}

TEST(PieProperties, EachEditIsAStepAChangeAndARowToFind) {
    driver::TestSteps(StartPie(), CChartLayout(), kRows);
    driver::TestChanges(StartPie(), CChartLayout(), kRows);
    driver::TestSearch(StartPie(), CChartLayout(), kRows);
}

TEST(PieProperties, AWideAngleNeedsAShadow) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Click("Shadow3D");
        person.Give("Angle", "120");
        EXPECT_EQ(person.TextOf("Angle"), "120");
        person.Ok();
    }));
    EXPECT_EQ(pie.m_angle3D, 120);
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        person.Click("Shadow3D");
        EXPECT_EQ(person.TextOf("Angle"), "90");
        person.Ok();
    }));
    EXPECT_EQS((pie.m_shadow3D, false), (pie.m_angle3D, 90));
}

TEST(PieProperties, AddedSectorsAreOpaqueAndOfTheirOwnColours) {
    CPieChart pie;
    EXPECT_TRUE(Edit(pie, [](Person& person) {
        for (int i = 0; i < 3; ++i) person.Click("Add");
        EXPECT_EQ(person.Rows("Sector"), QStringList({"Sector 1 (  )", "Sector 2 (  )", "Sector 3 (  )"}));
        person.Ok();
    }));
    ASSERT_EQ(pie.m_sectors.size(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(pie.m_sectors[i].m_color.m_color >> 24 == 0 && pie.m_sectors[i].m_color.m_type == 0);
    EXPECT_NE(pie.m_sectors[0].m_color.m_color, pie.m_sectors[2].m_color.m_color);
}

TEST(PieProperties, KeepsTheSizeThatItWasGivenAndThePreviewTheGrowth) {
    const QSize growth(120, 80);
    QSize natural;
    const auto open = [](const std::function<void(Person&, QWidget & preview)>& act) {
        CPieChart pie;
        EXPECT_FALSE(Edit(pie, [&](Person& person) {
            act(person, person.Find("Preview"));
            person.Cancel();
        }));
    };
    open([&](Person& person, QWidget& preview) {
        natural = person.Window().size();
        const QSize before = preview.size();
        const QSize list = person.Find("Sector").size();
        person.Window().resize(natural + growth);
        QTest::qWait(1);
        EXPECT_EQS((preview.size(), before + growth), (person.Find("Sector").width(), list.width()));
    });
    open([&](Person& person, QWidget&) {
        EXPECT_EQ(person.Window().size(), natural + growth);
        person.Window().resize(natural);
    });
    open([&](Person& person, QWidget&) { EXPECT_EQ(person.Window().size(), natural); });
}
