#include "render/pie.h"
#include "render/render_picture.h"
#include "render/sample_data.h"
#include "render/utf8_text.h"
#include <chartrender/pie.h>
#include <new>

static std::vector<std::string> SectorLabels(const CPieChart& chart, const CPieChartData& data) {
    std::vector<std::string> labels;
    for (int i = 0; i < data.count; ++i) {
        const char* label = data.labels ? data.labels[i] : nullptr;
        if (!label)
            label = i < chart.m_sectors.size() ? chart.m_sectors[i].m_text.data() : "";
        labels.emplace_back(CUtf8Text(label));
    }
    return labels;
}

ChartRenderResult RenderPieChart(const CPieChart& chart, const CChartLayout& layout,
                                 const CPieChartData& data, ChartPictureFormat format,
                                 CChartPicture& picture) {
    CChartPictureAccess::Clear(picture);
    if (data.count < 0 || (data.count > 0 && !data.values))
        return ChartRenderResult::BadData;
    try {
        const std::vector<std::string> labels = SectorLabels(chart, data);
        const std::span values(data.values, static_cast<std::size_t>(data.count));
        const PieHolder holder = BeginPieChart(layout);
        FinishPieChart(holder, chart, layout, {values, TextPointers(labels)});
        return CChartPictureAccess::Make(picture, holder.chart.Get(), format);
    } catch (const std::bad_alloc&) {
        return ChartRenderResult::NoPicture;
    }
}
