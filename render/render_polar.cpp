#include "render/polar.h"
#include "render/render_picture.h"
#include "render/sized_array.h"
#include <chartrender/polar.h>
#include <new>
#include <vector>

using LayerArray = CSizedArray<CPolarLayerData>;

/// The entry of each layer of the model, null where it has none. False if the entries do not fit the model.
static bool FindEntries(const CPolarChart& chart, const LayerArray& layers,
                        std::vector<const CPolarLayerData*>& entries) {
    entries.assign(static_cast<std::size_t>(chart.m_layers.GetLayerCount()), nullptr);
    for (int i = 0; i < layers.Count(); ++i) {
        const CPolarLayerData& entry = layers[i];
        if (entry.layer < 0 || entry.layer >= std::ssize(entries) || entry.count < 0 ||
            (entry.count > 0 && !entry.radii))
            return false;
        const CPolarLayerData*& place = entries[static_cast<std::size_t>(entry.layer)];
        if (place)
            return false;
        place = &entry;
    }
    return true;
}

static PolarData DataOf(const CPolarLayerData& entry) {
    const auto column = [&](const double* values) {
        return std::span(values, values ? static_cast<std::size_t>(entry.count) : 0);
    };
    return {column(entry.radii), column(entry.angles), column(entry.symbolSizes)};
}

ChartRenderResult RenderPolarChart(const CPolarChart& chart, const CChartLayout& layout,
                                   const CPolarChartData& data, ChartPictureFormat format,
                                   CChartPicture& picture) {
    CChartPictureAccess::Clear(picture);
    const LayerArray layers(data.layers, data.layerCount);
    try {
        std::vector<const CPolarLayerData*> entries;
        if (data.size < sizeof(CPolarChartData) || !layers.IsGood() || !FindEntries(chart, layers, entries))
            return ChartRenderResult::BadData;
        const PolarHolder holder = BeginPolarChart(chart, layout);
        bool empty = true;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const CPolarLayer* look = chart.m_layers.GetLayer(static_cast<int>(i));
            if (!look || !entries[i] || entries[i]->count == 0)
                continue;
            DrawPolarLayer(holder, *look, layout, DataOf(*entries[i]));
            empty = false;
        }
        FinishPolarChart(holder, chart, layout, empty, false);
        return CChartPictureAccess::Make(picture, holder.chart.Get(), format);
    } catch (const std::bad_alloc&) {
        return ChartRenderResult::NoPicture;
    }
}
