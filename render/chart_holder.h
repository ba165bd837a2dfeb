#pragma once
// A chart of the drawing library for the time of one drawing.

#include <chartdraw/surface.h>
#include <utility>

/// Owns a chart; everything reached through the chart ends with it.
class CChartHolder {
public:
    explicit CChartHolder(BaseChart* chart) : m_chart(chart) {}
    ~CChartHolder() {
        if (m_chart)
            CBaseChart_destroy(m_chart);
    }
    CChartHolder(CChartHolder&& other) noexcept : m_chart(std::exchange(other.m_chart, nullptr)) {}
    CChartHolder(const CChartHolder&) = delete;
    CChartHolder& operator=(const CChartHolder&) = delete;

    BaseChart* Get() const { return m_chart; }

private:
    BaseChart* m_chart;
};
