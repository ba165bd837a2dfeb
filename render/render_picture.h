#pragma once
// How rendering of any kind leaves its picture.

#include <chartdraw/surface.h>
#include <chartrender/picture.h>

struct CChartPictureAccess {
    static void Clear(CChartPicture& picture);
    /// Makes the picture of a finished chart; `picture` is to be empty.
    static ChartRenderResult Make(CChartPicture& picture, BaseChart* chart, ChartPictureFormat format);
};
