#pragma once
// Lines of all forms, and symbols at points: one class, because they differ only in the way from point to
// point. A scatter layer is one with lines of width 0.

#include "engine/xy/layer.h"

#include <QPointF>
#include <QSize>
#include <vector>

namespace chartdraw {

class LineLayer;

/// The handle to the line of a data set, which an inter-line layer may fill up to.
class SeriesLine : public Line {
public:
    SeriesLine(Chart& chart, const LineLayer& layer, const DataSet& set)
        : Line(chart), m_layer(layer), m_set(set) {}
    const LineLayer& layer() const { return m_layer; }
    const DataSet& set() const { return m_set; }
    void draw(Canvas& /*canvas*/) override {} // the layer draws it

private:
    const LineLayer& m_layer;
    const DataSet& m_set;
};

class LineLayer : public Layer {
public:
    static constexpr Kind kKind = Kind::LineLayer;

    enum class Form : unsigned char { Straight, Smooth, Steps };

    LineLayer(XYChart& chart, Form form, int depth);

    /// The same on each call; null for an index without a data set.
    Line* line(int dataSet);
    /// Sizes in pixels by row, before trimming; an empty one is as the other. A gap is no symbol.
    void setSymbolSizes(std::vector<double> widths, std::vector<double> heights);

    /// The line as it is drawn: positions along x and along y in `frame`, NaN at gaps.
    std::vector<QPointF> curve(const DataSet& set, const PlotFrame& frame) const;
    /// Where the layer stands on the picture that is being made; known from its draw() on.
    const PlotFrame& frame() const { return m_frame; }

    void draw(Canvas& canvas, const PlotFrame& frame) override;
    void drawLabels(Canvas& canvas, const PlotFrame& frame) override;
    void collectKeys(std::vector<LegendKey>& keys) const override;

protected:
    int automaticLineWidth() const override;

private:
    void drawLine(Canvas& canvas, const DataSet& set) const;
    void drawLongLine(Canvas& canvas, const DataSet& set) const;
    void drawSymbols(Canvas& canvas, const DataSet& set) const;
    void drawCloud(Canvas& canvas, const DataSet& set, const DataSymbol& symbol) const;
    QSize symbolSize(const DataSet& set, std::size_t row) const;

    Form m_form;
    std::vector<SeriesLine*> m_lines; ///< by data set; null until asked for
    std::vector<double> m_widths, m_heights;
    PlotFrame m_frame;
};

} // namespace chartdraw
