#pragma once
// Made-up data for previews of XY charts. Each layer's numbers come from its seed alone, so they stay the
// same from one drawing to the next.

#include "render/xy_source.h"

class CXYSamples : public CXYSource {
public:
    /// The axes of `chart` tell in what range the numbers are to be.
    explicit CXYSamples(const CXYChart& chart) : m_chart(chart) {}

    bool IsSample() const override { return true; }
    void LabelRows(Axis*) override {}
    std::unique_ptr<CXYLayerSource> Layer(const CXYChartLayer& layer) override;

private:
    const CXYChart& m_chart;
};
