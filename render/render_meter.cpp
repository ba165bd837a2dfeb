#include "render/angular_meter.h"
#include "render/linear_meter.h"
#include "render/render_picture.h"
#include <chartrender/meter.h>
#include <new>

/// Both kinds go the same way, each with its own way to begin and to finish.
template <class Meter, class Begin, class Finish>
static ChartRenderResult RenderMeter(const Meter& meter, const CChartLayout& layout, const CMeterData& data,
                                     ChartPictureFormat format, CChartPicture& picture, Begin begin,
                                     Finish finish) {
    CChartPictureAccess::Clear(picture);
    if (data.size < sizeof(CMeterData) || data.count < 0 || data.count > meter.m_pointers.size() ||
        (data.count > 0 && !data.values))
        return ChartRenderResult::BadData;
    try {
        const auto holder = begin(layout, false);
        finish(holder, meter, std::span(data.values, static_cast<std::size_t>(data.count)));
        return CChartPictureAccess::Make(picture, holder.chart.Get(), format);
    } catch (const std::bad_alloc&) {
        return ChartRenderResult::NoPicture;
    }
}

ChartRenderResult RenderAngularMeter(const CAngularMeter& meter, const CChartLayout& layout,
                                     const CMeterData& data, ChartPictureFormat format,
                                     CChartPicture& picture) {
    return RenderMeter(meter, layout, data, format, picture, BeginAngularMeter, FinishAngularMeter);
}

ChartRenderResult RenderLinearMeter(const CLinearMeter& meter, const CChartLayout& layout,
                                    const CMeterData& data, ChartPictureFormat format,
                                    CChartPicture& picture) {
    return RenderMeter(meter, layout, data, format, picture, BeginLinearMeter, FinishLinearMeter);
}
