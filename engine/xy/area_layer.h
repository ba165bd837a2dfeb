#pragma once
// Filled areas from the base line up to the values, each data set on top of those before.

#include "engine/xy/layer.h"

#include <QPointF>
#include <vector>

namespace chartdraw {

class AreaLayer : public Layer {
public:
    static constexpr Kind kKind = Kind::AreaLayer;

    /// `percentage`: every row's values are shown as parts of 100.
    AreaLayer(XYChart& chart, bool percentage, int depth);

    DataRange yRange() const override;
    bool fillsRange() const override { return m_percentage; }
    bool needsZero() const override { return true; }
    void draw(Canvas& canvas, const PlotFrame& frame) override;
    void drawLabels(Canvas& canvas, const PlotFrame& frame) override;

private:
    /// The upper border of each data set by row, before trimming: sums of the values up to it. A row without
    /// a value is a gap of its data set and counts as 0 in those above.
    std::vector<std::vector<double>> borders() const;
    std::vector<double> rowScales() const;
    /// What a border of all rows of `upper` looks like, 0 where `lower` is null.
    void drawArea(Canvas& canvas, const PlotFrame& frame, const DataSet& set,
                  const std::vector<double>& upper, const std::vector<double>* lower) const;

    bool m_percentage;
};

} // namespace chartdraw
