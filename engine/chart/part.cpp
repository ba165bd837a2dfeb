#include "engine/chart/part.h"

#include "engine/chart/chart.h"

namespace chartdraw {

void Part::changed() {
    m_chart.changed();
}

} // namespace chartdraw
