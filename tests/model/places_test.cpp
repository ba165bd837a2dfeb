// What differs between two objects as a person would tell it, and each difference set back by itself.

#include "model/fields/places.h"
#include "tests/model/models.h"
#include <gtest/gtest.h>

namespace {
using model::Change;

template <class Object> class PlacesTest : public testing::Test {};
using Kinds =
    testing::Types<CChartLayout, CXYChart, CPieChart, CPolarChart, CFinanceChart, CAngularMeter, CLinearMeter>;
TYPED_TEST_SUITE(PlacesTest, Kinds);

TYPED_TEST(PlacesTest, SettingEachChangeBackGivesTheObject) {
    for (unsigned seed = 0; seed < 12; ++seed) {
        const auto before = models::Random(seed).Make<TypeParam>();
        auto object = models::Random(seed + 1000).Make<TypeParam>();
        const auto places = [&] { return model::PlacesOf(object); };
        // A second time for axes that follow one that was not there yet.
        for (int round = 0; round < 3; ++round)
            for (const Change& change : model::Changes(model::PlacesOf(before), places()))
                model::Assign(change.path, places(), model::PlacesOf(before), places);
        EXPECT_EQ(model::Differences(before, object), std::vector<model::Difference>()) << seed;
    }
}

TEST(Changes, AreToldAsAPersonWouldTellThem) {
    CXYChart before;
    before.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    for (const int kind : {0, 1, 2}) before.m_layers.AddLayer(CXYChartLayerMgr::CreateLayer(kind));
    CXYChart now(before);
    now.m_depth = 7;
    now.m_edgeColor.m_type = 2;
    now.m_edgeColor.m_direction = 45;
    now.m_xAxis.m_title.m_font.m_size = 31;
    now.m_layers.GetLayer(0)->m_yAxisKind = 16;
    now.m_layers.GetLayer(0)->m_yAxis = now.m_axes.GetAxis(0);
    now.m_layers.DeleteLayer(1);
    now.m_layers.InsertLayer(CXYChartLayerMgr::CreateLayer(3), 1);
    std::vector<std::string> told;
    for (const auto& [path, from, to] : model::Changes(model::PlacesOf(before), model::PlacesOf(now)))
        told.push_back(path.find("olor") == std::string::npos && path.find("font") == std::string::npos
                           ? path + ": " + from + " to " + to
                           : path);
    EXPECT_EQ(told, (std::vector<std::string>{"edgeColor", "xAxis.title.font", "layers[0].yAxisKind: y to axis 0",
                                              "layers[1]: line to area", "depth: 0 to 7"}));
    CPieChart pie, longer;
    longer.m_sectors.push_back({});
    longer.m_depth3D = 5;
    EXPECT_EQ(model::Changes(model::PlacesOf(pie), model::PlacesOf(longer)),
              (std::vector<Change>{{"depth3D", "1", "5"}, {"sectors", "0", "1"}}));
}
} // namespace
