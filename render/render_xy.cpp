#include "render/render_picture.h"
#include "render/render_xy_source.h"
#include "render/xy_frame.h"
#include <new>

ChartRenderResult RenderXYChart(const CXYChart& chart, const CChartLayout& layout, const CXYChartData& data,
                                ChartPictureFormat format, CChartPicture& picture) {
    CChartPictureAccess::Clear(picture);
    try {
        const std::optional<XYHostData> read = XYHostData::Read(chart, data);
        if (!read)
            return ChartRenderResult::BadData;
        CXYHostSource source(chart, *read);
        const CChartHolder holder = MakeXYChart(chart, layout, LayersOf(chart), source);
        return CChartPictureAccess::Make(picture, holder.Get(), format);
    } catch (const std::bad_alloc&) {
        return ChartRenderResult::NoPicture;
    }
}
