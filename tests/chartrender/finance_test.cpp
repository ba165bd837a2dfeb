// Finance charts of the host's prices: in order, gaps marked, and clear answers to what is no data.

#include "render/finance/draw_finance.h"
#include "tests/render/calls.h"
#include <chartrender/chartrender.h>
#include <gmock/gmock.h>
#include <limits>

namespace {
using testing::Contains;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(RenderFinance, OfTheSamplePricesIsThePreview) {
    PreviewFake preview;
    preview.m_ownLayout.m_showLegend = false; // the preview's has a key that is only a sample
    preview.m_ownFinanceChart.m_showVolBars = preview.m_ownFinanceChart.m_showRsi = true;
    DrawFinanceChart(preview);

    const CSamplePrices prices;
    const FinanceSeries rows = prices.Rows();
    CFinanceChartData data;
    data.dates = rows.timeStamps.data();
    data.open = rows.open.data();
    data.high = rows.high.data();
    data.low = rows.low.data();
    data.close = rows.close.data();
    data.volume = rows.volume.data();
    data.count = RowCount(rows.close);
    data.leadingRows = 30;
    CChartPicture picture;
    ASSERT_EQ(
        RenderFinanceChart(preview.m_ownFinanceChart, preview.m_ownLayout, data, ChartPictureFormat::Bmp, picture),
        ChartRenderResult::Ok);
    const auto& previewed = preview.m_picture.Bytes();
    EXPECT_TRUE(std::equal(previewed.begin(), previewed.end(), reinterpret_cast<const char*>(picture.Data()),
                           reinterpret_cast<const char*>(picture.Data()) + picture.Size()));
}

TEST(RenderFinance, OrdersRowsAndMarksGaps) {
    const double dates[] = {3e5, 1e5, kNaN, 2e5, 3e5, kInfinity};
    const double open[] = {1, 5, 1, 8, 11, 1};
    const double high[] = {1, 6, 1, 7, kNaN, 1};
    const double low[] = {1, 4, 1, 9, 10, 1}; // above the high in the fourth row
    const double close[] = {1, -kInfinity, 1, 8, 12, 1};
    const double volume[] = {1, 100, 1, -200, 300, 1};
    CFinanceChartData data;
    data.dates = dates;
    data.open = open;
    data.high = high;
    data.low = low;
    data.close = close;
    data.volume = volume;
    data.count = 6;
    CFinanceChart look;
    look.m_showVolBars = true;
    const recorder::Recording recording;
    CChartPicture picture;
    RenderFinanceChart(look, CChartLayout(), data, ChartPictureFormat::Png, picture);
    EXPECT_FALSE(picture.Empty());
    EXPECT_THAT(recording.Lines(), Contains("CAxis_setLabels2(Axis#1, [1e+05, 2e+05, 3e+05], null)"));
    EXPECT_THAT(recording.Lines(), Contains("CXYChart_addHLOCLayer(XYChart#1, [6, 9, 1.7e+308], [4, 7, 10], "
                                            "[5, 8, 11], [1.7e+308, 8, 12], -1)"));
    // Each row's volume is in the layer of its change: none, none, up.
    EXPECT_THAT(recording.Lines(),
                Contains(R"(CXYChart_addBarLayer(XYChart#1, [1.7e+308, 1.7e+308, 300], 0x0099ff99, "", 0))"));
    EXPECT_EQ(recording.Count("CRanTable_create") + recording.Count("CBaseChart_addTitle2"), 0);
}

TEST(RenderFinance, LeavesRoomForTheLabelsOfLongPrices) {
    for (const double price : {100.0, 1234567.0, 0.00001}) {
        const double dates[] = {1e5, 2e5}, high[] = {price * 1.2, price * 1.1}, low[] = {price, price * 0.9};
        CFinanceChartData data;
        data.dates = dates;
        data.high = high;
        data.open = data.close = data.low = low;
        data.count = 2;
        CChartPicture picture;
        RenderFinanceChart(CFinanceChart(), CChartLayout(), data, ChartPictureFormat::Bmp, picture);
        const QImage image = QImage::fromData(picture.Data(), static_cast<int>(picture.Size()), "BMP");
        for (int y = 50; y < image.height() - 5; ++y)
            ASSERT_EQ(image.pixel(image.width() - 3, y), image.pixel(5, 5)) << price << ", row " << y;
    }
}

TEST(RenderFinance, LeavesRoomForTheTitlesAtTheTop) {
    const auto height = [](int titles, bool usePosition, int alignment) {
        CChartLayout layout;
        CChartTitle title;
        title.m_show = true;
        title.m_text = "Title";
        title.m_font.m_size = 20;
        title.m_usePosition = usePosition;
        title.m_alignment = alignment;
        for (int i = 0; i < titles; ++i) layout.m_titles.push_back(title);
        const double row[] = {1};
        CFinanceChartData data;
        data.dates = data.high = data.open = data.close = data.low = row;
        data.count = 1;
        CChartPicture picture;
        RenderFinanceChart(CFinanceChart(), layout, data, ChartPictureFormat::Bmp, picture);
        return QImage::fromData(picture.Data(), static_cast<int>(picture.Size()), "BMP").height();
    };
    EXPECT_EQ(height(0, false, CHART_TOP), 266);
    EXPECT_EQ(height(3, true, CHART_TOP), 266); // they stand where they were put
    EXPECT_EQ(height(3, false, CHART_BOTTOM), 266);
    EXPECT_GT(height(3, false, CHART_TOP), 266 + 3 * 20 - 30);
    EXPECT_GT(height(3, false, CHART_TOP), height(2, false, CHART_TOP));
}

TEST(RenderFinance, AnswersBadDataWithoutAPicture) {
    const double values[] = {1, 2};
    CFinanceChart volBars;
    volBars.m_showVolBars = true;
    CFinanceChart nothing;
    for (std::int32_t& pane : nothing.m_order) pane = -1;
    CChartLayout layout;
    const auto result = [&](const CFinanceChart& look, auto edit) {
        CFinanceChartData data;
        data.dates = data.open = data.high = data.low = data.close = values;
        data.count = 2;
        edit(data);
        CChartPicture picture;
        const ChartRenderResult answer = RenderFinanceChart(look, layout, data, ChartPictureFormat::Bmp, picture);
        EXPECT_EQ(picture.Empty(), answer != ChartRenderResult::Ok);
        return answer;
    };
    const struct {
        const CFinanceChart& look;
        void (*edit)(CFinanceChartData&);
        ChartRenderResult answer;
    } rows[] = {
        {volBars, [](CFinanceChartData&) {}, ChartRenderResult::Ok}, // there are no volumes
        {nothing, [](CFinanceChartData&) {}, ChartRenderResult::Ok},
        {volBars, [](CFinanceChartData& data) { data = {.count = 0}; }, ChartRenderResult::Ok},
        {volBars, [](CFinanceChartData& data) { data.leadingRows = 2147483647; }, ChartRenderResult::Ok},
        {volBars, [](CFinanceChartData& data) { data.count = -1; }, ChartRenderResult::BadData},
        {volBars, [](CFinanceChartData& data) { data.close = nullptr; }, ChartRenderResult::BadData},
        {volBars, [](CFinanceChartData& data) { --data.size; }, ChartRenderResult::BadData},
    };
    for (const auto& row : rows) EXPECT_EQ(result(row.look, row.edit), row.answer) << (&row - rows);
    for (const int width : {0, -2147483647 - 1, 2147483647, 80}) {
        layout.m_financeWidth = width; // 80 is all margins
        EXPECT_EQ(result(volBars, [](CFinanceChartData&) {}),
                  width == 80 ? ChartRenderResult::Ok : ChartRenderResult::NoPicture);
    }
}
} // namespace
