#pragma once
// Several charts on one picture, each at its place, the later ones over the earlier ones. The charts belong
// to whoever made them; this one only shows them.

#include "engine/chart/chart.h"

#include <vector>

namespace chartdraw {

class MultiChart : public Chart {
public:
    static constexpr Kind kKind = Kind::MultiChart;

    MultiChart(int width, int height, Colour background, Colour edge, int effect);
    ~MultiChart() override;

    /// Shows a chart with its top left corner at a place, over those added before; one that is there already
    /// moves. Ignored for a chart that shows this one, or is it, and where more than kMostLevels charts would
    /// stand inside one another.
    void addChart(QPoint at, Chart& chart);
    /// The chart that speaks for the whole: its keys stand in this chart's legend, unless it shows a legend
    /// itself. The first one added if none is named. Ignored for a chart that is not shown here.
    void setMainChart(Chart* chart);

    void collectKeys(std::vector<LegendKey>& keys) const override;
    bool hasDataIn(const QRect& box) const override;

protected:
    void drawBody(Canvas& canvas) override;
    void hostedEnds(Chart* chart) override;
    std::vector<Chart*> shownCharts() const override;

private:
    struct Shown {
        Chart* chart;
        QPoint at;
    };

    bool shows(const Chart* chart) const;
    /// Named, or the first one added; null without charts.
    Chart* mainChart() const;

    std::vector<Shown> m_shown;
    Chart* m_main = nullptr;
};

} // namespace chartdraw
