#pragma once
// What belongs to a chart and is changed by a handle of its own: an axis, a layer, a text.

#include "engine/object/object.h"

namespace chartdraw {

class Chart;

class Part : public Object {
public:
    Chart& chart() const { return m_chart; }
    void changed() final;

protected:
    Part(Kind kind, Chart& chart) : Object(kind), m_chart(chart) {}

private:
    Chart& m_chart;
};

} // namespace chartdraw
