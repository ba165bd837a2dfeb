// Whatever models and prices hold, drawing answers with a picture or with none; the sanitizers say whether it
// did so well. CHART_RANDOM_MODELS in the environment makes it more of them.

#include "render/angular_meter.h"
#include "render/finance/draw_finance.h"
#include "render/layout_sample.h"
#include "render/linear_meter.h"
#include "render/pie.h"
#include "render/polar.h"
#include "render/xy_frame.h"
#include "tests/model/models.h"
#include "tests/render/calls.h"
#include <numeric>

namespace {
int rounds() { return std::max(80, qEnvironmentVariableIntValue("CHART_RANDOM_MODELS")); }

template <class Model>
void draw(void (*routine)(CChartPreview&), Model CChartPreview::*own, bool ofTheLayoutsSize = true) {
    for (int round = 0; round < rounds(); ++round) {
        SCOPED_TRACE(round);
        models::Random random(static_cast<unsigned>(round));
        PreviewFake view;
        CChartLayout& layout = view.m_ownLayout;
        layout = random.Make<CChartLayout>();
        view.*own = random.Make<Model>();
        if (random.Below(20)) {
            layout.m_width = layout.m_financeWidth = 1 + random.Below(300);
            layout.m_height = 1 + random.Below(300);
        }
        if (round % 5 == 0) {
            view.m_singleLayerMode = true;
            if (!view.m_ownXYChart.m_layers.empty()) view.m_previewLayer = view.m_ownXYChart.m_layers.GetLayer(0);
            if (view.m_ownPolarChart.m_layers.GetLayerCount() > 0)
                view.m_polarLayer = view.m_ownPolarChart.m_layers.GetLayer(0);
        }
        routine(view);
        const auto possible = [](int side) { return side >= 1 && side <= 16384; };
        if (ofTheLayoutsSize)
            EXPECT_EQ(view.m_picture.Empty(), !possible(layout.m_width) || !possible(layout.m_height));
    }
}

TEST(Random, ModelsAreDrawn) {
    draw(DrawPieChart, &PreviewFake::m_ownPieChart);
    draw(DrawXYChart, &PreviewFake::m_ownXYChart);
    draw(DrawPolarChart, &PreviewFake::m_ownPolarChart);
    draw(DrawAngularMeter, &PreviewFake::m_ownAngularMeter);
    draw(DrawLinearMeter, &PreviewFake::m_ownLinearMeter);
    draw(DrawLayoutSample, &PreviewFake::m_ownLayout, false);
}

TEST(Random, PricesAreDrawn) {
    int pictures = 0;
    for (int round = 0; round < rounds(); ++round) {
        models::Random random(static_cast<unsigned>(round));
        const auto look = random.Make<CFinanceChart>();
        const int rows = random.Below(5) == 0 ? random.Below(3) : random.Below(400);
        std::vector<double> series[6];
        for (std::vector<double>& values : series) {
            values.resize(static_cast<std::size_t>(random.Below(12) ? rows : random.Below(rows + 1)));
            for (double& value : values)
                if (value = random.Below(2000) / 10.0; random.Below(12) == 0) random(value, {});
        }
        if (random.Below(12)) { // times that a chart can be of
            std::fill(series[0].begin(), series[0].end(), random.Below(3) * 43200.0);
            std::partial_sum(series[0].begin(), series[0].end(), series[0].begin());
        }
        int width = 40 + random.Below(560), extra = random.Below(41);
        if (random.Below(12) == 0) random(random.Below(2) ? width : extra, {});
        FinanceChart chart(width);
        DressFinanceChart(chart, CChartLayout(), true);
        chart.setData({series[0], series[1], series[2], series[3], series[4], series[5]}, extra);
        AddFinancePanes(chart, look);
        const char* bytes = nullptr;
        int length = 0;
        pictures += CBaseChart_makeChart2(chart.Chart(), CHART_FORMAT_BMP, &bytes, &length);
    }
    EXPECT_GT(pictures, rounds() / 4);
}
} // namespace
