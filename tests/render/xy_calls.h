#pragma once
// The calls that a preview of an XY chart makes, in a form that rows of a table can tell.

#include "render/xy_frame.h"
#include "tests/recorder/recorder.h"
#include "tests/render/preview_fake.h"
#include <algorithm>
#include <regex>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// A preview with an XY chart of fixed dates.
class XYPreview : public PreviewFake {
public:
    XYPreview() {
        m_chart = &m_ownXYChart;
        for (CXYChartAxis* axis : {&Chart().m_xAxis, &Chart().m_yAxis, &Chart().m_x2Axis, &Chart().m_y2Axis})
            FixDates(*axis);
    }

    CXYChart& Chart() { return m_ownXYChart; }
    CChartLayout& Layout() { return m_ownLayout; }

    /// Adds an axis or a layer to the chart.
    CXYChartAxis& AddAxis() {
        CXYChartAxis* axis = CXYChartAxisMgr::CreateAxis();
        FixDates(*axis);
        Chart().m_axes.AddAxis(axis);
        return *axis;
    }
    CXYChartLayer& AddLayer(int type, const char* name = "") {
        CXYChartLayer* layer = CXYChartLayerMgr::CreateLayer(type);
        layer->m_seed = 7;
        layer->m_name = name;
        Chart().m_layers.AddLayer(layer);
        return *layer;
    }
    template <class Kind>
    Kind& Add(int type, const char* name = "") {
        return static_cast<Kind&>(AddLayer(type, name));
    }

private:
    static void FixDates(CXYChartAxis& axis) {
        axis.m_dateLowerLimit = 1000;
        axis.m_dateUpperLimit = 2000;
    }
};

/// The calls of one drawing, without casts, and with the count in the place of long arrays.
inline Lines drawnCalls(CChartPreview& view) {
    const recorder::Recording recording;
    DrawXYChart(view);
    Lines lines = recording.Lines();
    std::erase_if(lines, [](const std::string& line) {
        return std::regex_search(line, std::regex("^[A-Za-z]+2[A-Z][A-Za-z]+\\("));
    });
    for (std::string& line : lines) {
        static const std::regex numbers("\\[(-?[0-9.e+]+(, )?)+\\]");
        for (std::smatch found; std::regex_search(line, found, numbers);) {
            const auto count = 1 + std::count(found[0].first, found[0].second, ',');
            line = found.prefix().str() + std::to_string(count) + " numbers" + found.suffix().str();
        }
    }
    return lines;
}
