#pragma once
// The host's arrays as the source of what an XY chart shows.

#include "render/xy_source.h"
#include <chartrender/xy.h>
#include <optional>
#include <vector>

/// The data of a chart, checked and brought to today's structures. The arrays stay the host's.
struct XYHostData {
    /// Nothing if the data do not fit each other or the model.
    static std::optional<XYHostData> Read(const CXYChart& chart, const CXYChartData& data);

    struct Layer {
        CXYLayerData data;
        std::vector<CXYSeriesData> series;
        std::vector<CXYTaskData> tasks;
    };
    CXYChartData chart;
    std::vector<std::optional<Layer>> layers; ///< Of each layer of the model, if it has data.
};

class CXYHostSource : public CXYSource {
public:
    CXYHostSource(const CXYChart& look, const XYHostData& data) : m_look(look), m_data(data) {}

    bool IsSample() const override { return false; }
    void LabelRows(Axis* xAxis) override;
    std::unique_ptr<CXYLayerSource> Layer(const CXYChartLayer& layer) override;

private:
    const CXYChart& m_look;
    const XYHostData& m_data;
};
