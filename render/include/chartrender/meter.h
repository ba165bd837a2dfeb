#pragma once

/// @file
/// Meters that show the host's values.
///
///     const double speed = 87.5;
///     CMeterData data;
///     data.values = &speed, data.count = 1;
///     RenderAngularMeter(meter, layout, data, ChartPictureFormat::Png, picture);

#include <charteditors/chart_layout.h>
#include <charteditors/meters.h>
#include <chartrender/picture.h>

/// Where the pointers of a meter point. The array stays the host's, and is only read during the call.
struct CMeterData {
    std::size_t size = sizeof(CMeterData); ///< Of this structure, in bytes; to be left as it is.
    /// In the unit of the scale, in the order of the model's pointers. What lies outside the scale is shown
    /// at its end; 1.7E308 or NaN is missing, and such a pointer is not drawn.
    const double* values = nullptr;
    int count = 0; ///< Of the values. Pointers beyond them point where the model says.
};

/// Renders an angular meter with the host's values into `picture`. What a preview adds to show a setting,
/// such as the key of an empty legend, is left out. BadData for a `size` below that of this header, a
/// negative count, one above that of the model's pointers, or no values where the count says there are.
CHARTRENDER_API ChartRenderResult RenderAngularMeter(const CAngularMeter& meter, const CChartLayout& layout,
                                                     const CMeterData& data, ChartPictureFormat format,
                                                     CChartPicture& picture);

/// The same for a linear meter.
CHARTRENDER_API ChartRenderResult RenderLinearMeter(const CLinearMeter& meter, const CChartLayout& layout,
                                                    const CMeterData& data, ChartPictureFormat format,
                                                    CChartPicture& picture);
