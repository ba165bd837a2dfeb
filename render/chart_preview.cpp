#include "render/chart_preview.h"

void StorePicture(CChartPreview* view, BaseChart* chart) {
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, view ? view->PictureFormat() : CHART_FORMAT_BMP, &bytes, &length);
    if (!view || !view->m_picture.Assign(bytes, length))
        return;
    DrawArea* area = CBaseChart_getDrawArea(chart);
    const int width = CDrawArea_getWidth(area);
    const int height = CDrawArea_getHeight(area);
    if (width == view->m_pictureWidth && height == view->m_pictureHeight)
        return;
    view->m_pictureWidth = width;
    view->m_pictureHeight = height;
    if (!view->m_fitMode)
        view->SetScrollSizes();
}
