#pragma once
// A plain layer for tests of the frame: blocks from the base line or a line, with a range and needs that the
// test sets, and a record of the frame that it was given.

#include "engine/xy/layer.h"
#include "engine/xy/xy_chart.h"
#include <utility>
#include <vector>

namespace chartdraw {
class Probe : public Layer {
public:
    enum class Form { Blocks, Polyline };

    Probe(XYChart& chart, Form form, std::vector<double> data) : Layer(Kind::Layer, chart), m_form(form) {
        addDataSet(std::move(data), kDefaultColour, {});
    }

    bool needsZero() const override { return m_form == Form::Blocks; }
    bool wantsIndent() const override { return m_form == Form::Blocks; }

    void draw(Canvas& canvas, const PlotFrame& frame) override {
        std::vector<QPointF> points;
        const RowRange rows = this->rows();
        const std::span<const double> data = dataSets()[0]->data();
        for (std::size_t row = rows.begin; row < rows.end && row < data.size(); ++row) {
            points.push_back(frame.point(xValue(row), data[row]));
            if (m_form == Form::Blocks && !std::isnan(points.back().x() + points.back().y())) {
                const double x = frame.x.pixel(xValue(row));
                const QPointF from = frame.at(x - 6, frame.baseLine());
                const QPointF to = frame.at(x + 6, frame.y.pixel(data[row]));
                canvas.fillRect(QRectF(from, to).normalized() & QRectF(frame.inner()), dataSets()[0]->colour());
            }
        }
        if (m_form == Form::Polyline) canvas.polyline(points, dataSets()[0]->colour(), 2);
    }

private:
    Form m_form;
};
} // namespace chartdraw
