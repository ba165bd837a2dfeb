#pragma once
// The host's arrays as the source of what an XY chart shows.

#include "render/sized_array.h"
#include "render/xy_source.h"
#include <chartrender/xy.h>
#include <optional>
#include <vector>

/// The data of a chart, found to fit each other and the model. The arrays stay the host's.
struct XYHostData {
    /// Nothing if they do not fit.
    static std::optional<XYHostData> Read(const CXYChart& chart, const CXYChartData& data);

    struct Layer {
        const CXYLayerData& data;
        CSizedArray<CXYSeriesData> series;
        CSizedArray<CXYTaskData> tasks;
    };
    const CXYChartData& chart;
    std::vector<std::optional<Layer>> layers = {}; ///< Of each layer of the model, if it has data.
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
