// The managers, and the relations inside an XY chart: true after copying, assigning, deleting and failing.

#include "tests/model/memory_probe.h"
#include <charteditors/charteditors.h>
#include <memory>
#include <string>

namespace {
CXYChartAxis* addAxis(CXYChart& chart, const char* format) {
    CXYChartAxis* axis = CXYChartAxisMgr::CreateAxis();
    axis->m_labelFormat = format;
    chart.m_axes.AddAxis(axis);
    return axis;
}

CXYChartLayer* addLayer(CXYChart& chart, int type, const char* name, CXYChartAxis* axis = nullptr) {
    CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(type);
    layer->m_name = name;
    layer->m_yAxis = axis;
    layer->m_yAxisKind = axis ? 16 : 2;
    chart.m_layers.AddLayer(layer);
    return layer;
}

void relate(CXYChart& chart) {
    CXYChartAxis* a = addAxis(chart, "a");
    CXYChartAxis* b = addAxis(chart, "b");
    CXYChartAxis* c = addAxis(chart, "c");
    c->m_syncAxis = a;
    c->m_syncKind = 16;
    chart.m_x2Axis.m_syncAxis = b;
    chart.m_y2Axis.m_syncAxis = c;
    addLayer(chart, 0, "bar", b);
    addLayer(chart, 7, "gantt", c);
    addLayer(chart, 3, "area");
}

/// Every relation as "who>index in the chart's own axes", with -1 for a null and ! for an axis of elsewhere.
std::string relations(const CXYChart& chart) {
    std::string result;
    const auto tell = [&](const std::string& who, const CXYChartAxis* axis) {
        const int index = chart.m_axes.GetAxisIndex(axis);
        result += who + '>' + (axis && index < 0 ? "!" : std::to_string(index)) + ' ';
    };
    tell("x2", chart.m_x2Axis.m_syncAxis);
    tell("y2", chart.m_y2Axis.m_syncAxis);
    for (int i = 0; i < chart.m_axes.GetAxisCount(); i++)
        tell(chart.m_axes.GetAxis(i)->m_labelFormat.data(), chart.m_axes.GetAxis(i)->m_syncAxis);
    for (int i = 0; i < chart.m_layers.GetLayerCount(); i++)
        tell(chart.m_layers.GetLayer(i)->m_name.data(), chart.m_layers.GetLayer(i)->m_yAxis);
    return result;
}

const char* const related = "x2>1 y2>2 a>-1 b>-1 c>0 bar>1 gantt>2 area>-1 ";
} // namespace

TEST(XYChart, RelationsFollowIntoEveryCopy) {
    auto source = std::make_unique<CXYChart>();
    relate(*source);
    ASSERT_EQ(relations(*source), related);
    const CXYChart copy(*source);
    CXYChart assigned;
    relate(assigned);
    addLayer(assigned, 1, "more", addAxis(assigned, "d"));
    assigned = *source;
    const CXYChart again(assigned);
    source.reset(); // nothing may look into it any more: the sanitizers look on
    for (const CXYChart* chart : {&copy, static_cast<const CXYChart*>(&assigned), &again})
        EXPECT_EQ(relations(*chart), related);
    EXPECT_NE(copy.m_axes.GetAxis(0), assigned.m_axes.GetAxis(0));
    EXPECT_EQ(copy.m_layers.GetLayer(1)->GetType(), 7);

    assigned = *&assigned;
    EXPECT_EQ(relations(assigned), related);
}

TEST(XYChart, PointersToOtherChartsAreNotTakenAlong) {
    CXYChart other;
    CXYChart chart;
    relate(chart);
    CXYChartAxis* foreign = addAxis(other, "foreign");
    chart.m_layers.GetLayer(2)->m_yAxis = foreign;
    chart.m_x2Axis.m_syncAxis = foreign;
    chart.m_xAxis.m_syncAxis = foreign;
    const CXYChart copy(chart);
    EXPECT_EQ(relations(copy), "x2>-1 y2>2 a>-1 b>-1 c>0 bar>1 gantt>2 area>-1 ");
    EXPECT_EQ(copy.m_xAxis.m_syncAxis, foreign) << "X follows no axis; the field is copied as it stands";
}

TEST(XYChart, UpdateRelationClearsWhatIsGone) {
    CXYChart chart;
    relate(chart);
    chart.m_xAxis.m_syncAxis = chart.m_axes.GetAxis(1);
    chart.m_axes.DeleteAxis(1);
    chart.UpdateRelation();
    EXPECT_EQ(relations(chart), "x2>-1 y2>1 a>-1 c>0 bar>-1 gantt>1 area>-1 ");
    EXPECT_EQ(chart.m_layers.GetLayer(0)->m_yAxisKind, 16) << "kinds stay";
    EXPECT_NE(chart.m_xAxis.m_syncAxis, nullptr) << "X is left alone";
    chart.m_axes.DeleteAxis(0);
    chart.UpdateRelation();
    EXPECT_EQ(relations(chart), "x2>-1 y2>0 c>-1 bar>-1 gantt>0 area>-1 ");
    chart.m_axes.DeleteContents();
    chart.UpdateRelation();
    EXPECT_EQ(relations(chart), "x2>-1 y2>-1 bar>-1 gantt>-1 area>-1 ");
}

TEST(XYChart, FailingCopyLeavesNoPointerIntoTheSource) {
    CXYChart source;
    relate(source);
    CXYChart chart;
    relate(chart);
    chart.m_y2Axis.m_syncAxis = chart.m_axes.GetAxis(0);
    const int failures = model_test::failEachAllocation([&] { chart = source; },
                                                        [&] {
                                                            const std::string now = relations(chart);
                                                            EXPECT_EQ(now.find('!'), std::string::npos) << now;
                                                        });
    EXPECT_GT(failures, 10);
    EXPECT_EQ(relations(chart), related);
    std::unique_ptr<CXYChart> copy;
    model_test::failEachAllocation([&] { copy = std::make_unique<CXYChart>(source); }, [] {});
    EXPECT_EQ(relations(*copy), related);
}

TEST(AxisMgr, LooksAtWhatItIsAskedFor) {
    CXYChartAxisMgr axes;
    EXPECT_EQS((axes.GetAxisCount(), 0), (axes.empty(), true), (axes.GetSafeAxis(0), nullptr));
    axes.DeleteContents();
    CXYChartAxis stranger;
    CXYChartAxis* first = CXYChartAxisMgr::CreateAxis();
    CXYChartAxis* second = CXYChartAxisMgr::CreateAxis();
    EXPECT_EQS((axes.AddAxis(first), 0), (axes.AddAxis(second), 1), (axes.GetSafeAxis(-1), nullptr),
               (axes.GetSafeAxis(2), nullptr), (axes.GetSafeAxis(1), second), (axes.GetAxisIndex(second), 1),
               (axes.GetAxisIndex(&stranger), -1), (axes.GetAxisIndex(nullptr), -1),
               (axes.SafeAxis(&stranger), nullptr), (axes.SafeAxis(nullptr), nullptr), (axes.SafeAxis(first), first));
    axes.SetAxis(second, 0);
    axes.SetAxis(first, 1);
    EXPECT_EQ(axes.GetAxis(0), second);
    axes.DeleteAxis(0);
    EXPECT_EQ(axes.GetAxis(0), first);
    axes.DeleteContents();
    EXPECT_TRUE(axes.empty());
    EXPECT_EQ(axes.AddAxis(nullptr), 0) << "an empty entry is kept";
    EXPECT_EQS((axes.GetAxisIndex(nullptr), -1), (CXYChartAxisMgr(axes).GetAxisCount(), 1));
}

namespace {
template <class Manager> class LayerMgrTest : public testing::Test {};
using LayerManagers = testing::Types<CXYChartLayerMgr, CPolarLayerMgr>;
TYPED_TEST_SUITE(LayerMgrTest, LayerManagers);

template <class Manager> std::string namesOf(const Manager& layers) {
    std::string names;
    for (int i = 0; i < layers.GetLayerCount(); i++)
        names += layers.GetLayer(i) ? layers.GetLayer(i)->m_name.data() : "-";
    return names;
}

template <class Manager> auto* named(int type, const char* name) {
    auto* layer = Manager::CreateLayer(type);
    layer->m_name = name;
    return layer;
}
} // namespace

TYPED_TEST(LayerMgrTest, KeepsLayersInOrderAndCopiesThem) {
    TypeParam layers;
    layers.DeleteContents();
    EXPECT_EQS((layers.GetLayerCount(), 0), (layers.AddLayer(named<TypeParam>(0, "b")), 0),
               (layers.AddLayer(named<TypeParam>(2, "d")), 1));
    layers.InsertLayer(named<TypeParam>(1, "c"), 1);
    layers.InsertLayer(named<TypeParam>(3, "a"), 0);
    layers.InsertLayer(named<TypeParam>(3, "e"), 4);
    EXPECT_EQ(namesOf(layers), "abcde");
    layers.AddLayer(nullptr);

    const TypeParam copy(layers);
    TypeParam assigned;
    assigned.AddLayer(named<TypeParam>(1, "old"));
    assigned = layers;
    assigned = *&assigned;
    layers.DeleteLayer(0);
    EXPECT_EQ(namesOf(layers), "bcde-");
    layers.DeleteContents();
    EXPECT_EQ(namesOf(layers), "");
    layers.AddLayer(named<TypeParam>(0, "f"));
    EXPECT_EQ(namesOf(layers), "f");
    for (const TypeParam* list : {&copy, static_cast<const TypeParam*>(&assigned)})
        EXPECT_EQS((namesOf(*list), "abcde-"), (list->GetLayer(0)->GetType(), 3));
    EXPECT_EQ(copy.GetLayer(2)->GetSeed(), assigned.GetLayer(2)->GetSeed());
}

TYPED_TEST(LayerMgrTest, StaysAsItWasWhenMemoryRunsOut) {
    TypeParam layers;
    layers.AddLayer(named<TypeParam>(0, "kept"));
    TypeParam source;
    for (int type = 0; type < 4; type++) source.AddLayer(named<TypeParam>(type, "copied"));
    const int failures =
        model_test::failEachAllocation([&] { layers = source; }, [&] { EXPECT_EQ(namesOf(layers), "kept"); });
    EXPECT_GE(failures, 8);
    EXPECT_EQ(namesOf(layers), "copiedcopiedcopiedcopied");

    const model_test::MemoryLimit limit(0);
    const auto* made = TypeParam::CreateLayer(0);
    const auto* clone = TypeParam::CloneLayer(source.GetLayer(0));
    EXPECT_EQS((made, nullptr), (clone, nullptr));
}

TYPED_TEST(LayerMgrTest, MakesAndCopiesByKind) {
    using Owned = std::unique_ptr<std::remove_pointer_t<decltype(TypeParam::CreateLayer(0))>>;
    const int kinds = std::is_same_v<TypeParam, CPolarLayerMgr> ? 4 : 9;
    for (int type = -2; type < kinds + 2; type++) {
        const Owned made(TypeParam::CreateLayer(type));
        ASSERT_EQ(made != nullptr, type >= 0 && type < kinds) << type;
        if (!made) continue;
        EXPECT_EQ(made->GetType(), type);
        for (int other = 0; other < kinds; other++) {
            const Owned target(TypeParam::CreateLayer(other));
            made->m_name = "source";
            EXPECT_EQ(TypeParam::CopyLayer(made.get(), target.get()), other == type ? 1 : 0);
            EXPECT_STREQ(target->m_name.data(), other == type ? "source" : "");
            EXPECT_EQ(target->GetSeed() == made->GetSeed(), other == type);
        }
        const Owned clone(TypeParam::CloneLayer(made.get()));
        EXPECT_EQ(clone->GetSeed(), made->GetSeed());
    }
    EXPECT_EQS((TypeParam::CloneLayer(nullptr), nullptr), (TypeParam::CopyLayer(nullptr, nullptr), 0));
}

TEST(LayerMgr, CopiesTheFieldsOfTheKind) {
    CXYBarLayer bar;
    bar.m_dataSetColors.push_back({});
    CXYBarLayer otherBar;
    EXPECT_EQ(CXYChartLayerMgr::CopyLayer(&bar, &otherBar), 1);
    otherBar.m_dataSetColors[0].m_color = 5;
    EXPECT_EQ(bar.m_dataSetColors[0].m_color, 0U);

    CXYChartLayer bare;
    CXYChartLayer otherBare;
    EXPECT_EQS((bare.GetType(), -1), (CXYChartLayerMgr::CopyLayer(&bare, &otherBare), 0),
               (CXYChartLayerMgr::CloneLayer(&bare), nullptr));
    bare.m_type = 0; // a number that belies its object is no reason to write past its end
    EXPECT_EQ(CXYChartLayerMgr::CopyLayer(&bar, &bare), 0);

    CPolarLineLayer line;
    line.m_closeLoop = true;
    const std::unique_ptr<CPolarLayer> clone(CPolarLayerMgr::CloneLayer(&line));
    EXPECT_TRUE(dynamic_cast<CPolarLineLayer&>(*clone).m_closeLoop);
    CPolarSplineLineLayer spline;
    EXPECT_EQS((CPolarLayerMgr::CopyLayer(&line, &spline), 0), (spline.m_closeLoop, false));
}
