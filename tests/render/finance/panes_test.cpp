// How panes stand under one another: their places in the picture, and the dates under the last one.

#include "render/finance/draw_finance.h"
#include "tests/render/calls.h"
#include <functional>
#include <gmock/gmock.h>
#include <numeric>

namespace {
/// The labels of the x axis for `rows` rows `step` seconds apart.
std::vector<std::string> formats(int width, int rows, double step, int extraPoints) {
    std::vector<double> times;
    for (int row = 0; row < rows; ++row) times.push_back(CChart_chartTime(2002, 1, 1, 0, 0, 0) + row * step);
    FinanceChart chart(width);
    chart.setData({times, {}, {}, {}, {}, {}}, extraPoints);
    const recorder::Recording recording;
    chart.addIndicator(70);
    std::vector<std::string> lines;
    for (const std::string& line : recording.Lines()) {
        if (line.starts_with("CChart_encodeFilter(")) lines.push_back(line.substr(20, line.size() - 21));
        if (line.starts_with("CAxis_setMultiFormat")) // the end: the span and whether the first is promoted
            lines.push_back(line.substr(line.rfind('"') + 3, line.size() - line.rfind('"') - 4));
    }
    return lines;
}

TEST(FinanceDates, AreChosenByTheTimeShown) {
    using Lines = std::vector<std::string>;
    constexpr double hour = 3600, day = 24 * hour;
    const Lines daily = {"4, 1, 0.05", "2, 1, 0.5"}, hourly = {"2, 1, 0.5", "1, 1, 0.5"};
    const auto with = [](Lines filters, const char* end) {
        filters.emplace_back(end);
        return filters;
    };
    const auto monthly = [](const char* step) {
        return Lines{"5, 1, 0.05", std::string("4, ") + step + ", 0.05", "1, true", "4, 1, 0.05", "1, false"};
    };
    const struct {
        int width, rows;
        double step;
        int extraPoints;
        Lines lines;
    } rows[] = {
        {500, 0, day, 0, {}},
        {500, 30, day, 30, {}}, // nothing is shown
        {500, 1, day, 0, with(daily, "1, true")},
        {500, 5, hour, 0, with(hourly, "1, true")}, // room for a label each
        {500, 5, day, 0, with(daily, "1, true")},
        {500, 5, 30 * day, 0, monthly("1")},
        {500, 5, 400 * day, 0, {"5, 1, 0.05", "1, true"}},
        {500, 60, hour, 0, with(daily, "8, true")}, // 7 hours to a label, over more than a day
        {500, 60, hour / 4, 0, with(hourly, "8, true")},
        {500, 40, day, 0, with(daily, "5, true")},        // 4.6 days to a label
        {500, 62, day, 0, monthly("1")},                  // 7.3 days over 61
        {500, 60, day, 0, with(daily, "8, true")},        // 7.02 days over 59
        {500, 500, day, 0, monthly("2")},                 // 59 days
        {500, 2000, day, 0, {"5, 1, 0.05", "239, true"}}, // 238 days over five years
        {500, 2000, day, 1990, with(daily, "2, true")},   // the extra rows do not count
        {80, 2, day, 0, monthly("2")},                    // no width counts as one pixel
        {60, 2, day, 0, with(daily, "1, true")},
    };
    for (const auto& row : rows)
        EXPECT_EQ(formats(row.width, row.rows, row.step, row.extraPoints), row.lines)
            << row.rows << " rows of " << row.step << " s";
}

TEST(FinancePanes, StandToThePixelInEveryOrder) {
    const int heights[] = {90, 45, 52, 61, 74};
    PreviewFake view;
    CFinanceChart& look = view.m_ownFinanceChart;
    view.m_ownLayout.m_showLegend = false;
    look.m_mainHeight = heights[0];
    look.m_rsiHeight = heights[1];
    look.m_momentumHeight = heights[2];
    look.m_ssHeight = heights[3];
    look.m_macdHeight = heights[4];
    int order[] = {0, 1, 2, 3, 4};
    int shown = 0; // which panes, changing with the order
    do {
        std::copy(std::begin(order), std::end(order), look.m_order);
        shown = (shown + 5) % 32;
        look.m_showRsi = shown & 1;
        look.m_showMomentum = shown & 2;
        look.m_showSlowStochastic = shown & 4;
        look.m_showMacd = shown & 8;
        const auto isShown = [&](int pane) { return pane == 0 || (shown & (1 << (pane - 1))) != 0; };
        view.m_picture.Clear();
        DrawFinanceChart(view);
        const QImage image = pictureOf(view);
        // The first and last rows of the plot areas, which are their frames.
        int y = 30;
        std::vector<int> edges;
        for (const int pane : order)
            if (isShown(pane)) {
                edges.push_back(y);
                y += heights[pane] + 1;
                edges.push_back(y - 1);
            }
        ASSERT_EQ(image.height(), y + 35);
        for (std::size_t i = 0; i < edges.size(); ++i) {
            for (const int x : {40, 250, 460})
                ASSERT_LT(image.pixelColor(x, edges[i]).lightness(), 140) << x << ", " << edges[i];
            ASSERT_EQ(image.pixel(39, edges[i]), 0xffffffff);
            ASSERT_EQ(image.pixel(461, edges[i]), 0xffffffff);
        }
    } while (std::next_permutation(std::begin(order), std::end(order)));
}
} // namespace
