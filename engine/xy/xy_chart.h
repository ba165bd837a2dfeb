#pragma once
// A chart with x and y axes. It owns plot area, axes and layers, finds out from the layers what the axes must
// show, and draws the frame around what the layers draw.

#include "engine/axis/axis.h"
#include "engine/axis/axis_plan.h"
#include "engine/chart/chart.h"
#include "engine/xy/layer.h"
#include "engine/xy/plot_area.h"

#include <vector>

namespace chartdraw {

/// An axis of the chart and where it stands.
struct ChartAxis {
    Axis* axis = nullptr;
    int side = 0;         ///< 4 left, 6 right, 8 top, 2 bottom, before swapping and moving to the right
    int offset = 0;       ///< pixels outwards from that side of the plot area
    bool further = false; ///< added by addAxis, which alone are not moved by setYAxisOnRight
};

class XYChart : public Chart {
public:
    static constexpr Kind kKind = Kind::XYChart;

    XYChart(int width, int height, Colour background, Colour edge, int effect);

    /// The plot area, with the given place. Before the first call there is none: neither axes nor layers are
    /// drawn, and the chart is a picture with background and texts.
    PlotArea* setPlotArea(int x, int y, int width, int height);
    PlotArea* plotArea() const { return m_plotArea; }

    Axis* xAxis() const { return m_axes[0].axis; }
    Axis* yAxis() const { return m_axes[1].axis; }
    /// The second axes stand at the other sides, and are made, and from then on shown, by the first call.
    Axis* xAxis2();
    Axis* yAxis2();
    Axis* addAxis(int side, int offset);
    /// All axes: the first x, the first y, then in the order in which they were made.
    const std::vector<ChartAxis>& axes() const { return m_axes; }
    bool owns(const Axis* axis) const;

    void swapXY(bool swap);
    void setAxisAtOrigin(int mode, int flags);
    void setYAxisOnRight(bool right);
    void setTrimData(int start, int length);

    bool swapped() const { return m_swapped; }
    bool yAxisOnRight() const { return m_yOnRight; }
    /// As setAxisAtOrigin has them, of each direction.
    bool atOrigin(Direction direction) const {
        return (m_originMode & (direction == Direction::X ? 1 : 2)) != 0;
    }
    bool symmetric(Direction direction) const {
        return (m_symmetry & (direction == Direction::X ? 1 : 4)) != 0;
    }
    /// The rows shown of `count` rows.
    RowRange rows(std::size_t count) const;

    /// Makes a layer of class L, which is drawn over those before: L(chart, args...).
    template <class L, class... Args>
    L* addLayer(Args&&... args) {
        L* layer = own<L>(*this, std::forward<Args>(args)...);
        m_layers.push_back(layer);
        return layer;
    }
    const std::vector<Layer*>& layers() const { return m_layers; }
    /// The colour of the next series that has none of its own.
    Colour nextSeriesColour() { return seriesColour(m_seriesColours++); }

    /// What the x axis says at the rows, before trimming: {xLabel} of data labels. The rows' numbers where it
    /// has no labels.
    RowTexts rowTexts() const;

    void collectKeys(std::vector<LegendKey>& keys) const override;
    bool hasDataIn(const QRect& box) const override;

protected:
    void drawBody(Canvas& canvas) override;

private:
    Axis* makeAxis(int side, int offset, bool further);

    std::vector<ChartAxis> m_axes;
    Axis* m_xAxis2 = nullptr;
    Axis* m_yAxis2 = nullptr;
    PlotArea* m_plotArea = nullptr;
    std::vector<Layer*> m_layers;
    bool m_swapped = false, m_yOnRight = false;
    int m_originMode = 0, m_symmetry = 0;
    std::size_t m_trimStart = 0, m_trimLength = static_cast<std::size_t>(-1);
    int m_seriesColours = 0;
};

} // namespace chartdraw
