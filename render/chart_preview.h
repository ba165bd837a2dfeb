#pragma once
// What the drawing routines know of a preview pane: the models to draw, and where the picture goes. The pane
// itself derives from this.

#include "render/picture_block.h"
#include <chartdraw/surface.h>
#include <charteditors/chart_layout.h>
#include <charteditors/finance_chart.h>
#include <charteditors/meters.h>
#include <charteditors/pie_chart.h>
#include <charteditors/polar_chart.h>
#include <charteditors/xy_chart.h>

#include <algorithm>

/// What a preview shows; it picks the drawing routine.
enum PreviewKind {
    PreviewColor = 0,
    PreviewFont = 1,
    PreviewImage = 2,
    PreviewLayout = 3,
    PreviewXYChart = 4,
    PreviewPieChart = 5,
    PreviewFinanceChart = 6,
    PreviewAngularMeter = 7,
    PreviewLinearMeter = 8,
    PreviewPolarChart = 9
};

/// The format of a picture drawn at a scale, for CBaseChart_makeChart2.
inline int PictureFormatAt(double scale) {
    const double units = scale * int{CHART_SCALE_UNIT} + 0.5;
    return scale == 1 ? int{CHART_FORMAT_BMP} : CHART_FORMAT_BMP + 256 * std::max(1, static_cast<int>(units));
}

/// The data of a preview. Routines read the models and leave the picture, by StorePicture.
class CChartPreview {
public:
    CChartPreview() = default;
    virtual ~CChartPreview() = default;
    CChartPreview(const CChartPreview&) = delete;
    CChartPreview& operator=(const CChartPreview&) = delete;

    /// The size of the pane without its border and scroll bars, in pixels of the picture.
    virtual int ClientWidth() const = 0;
    virtual int ClientHeight() const = 0;
    /// Takes the picture's new size as the scroll sizes.
    virtual void SetScrollSizes() = 0;
    /// What the picture is made as, for CBaseChart_makeChart2. At natural size, where the pane does not draw
    /// on finer pixels or show it smaller.
    virtual int PictureFormat() const { return CHART_FORMAT_BMP; }
    /// Paints the bytes of a bitmap file over the pane, with a frame. Only within a paint.
    virtual void PaintSample(const char* bytes, int length) = 0;

    int m_kind = PreviewColor; ///< A PreviewKind.
    bool m_dirty = false;      ///< The picture is stale.
    CPictureBlock m_picture;   ///< The cached picture, a bitmap file, or none.
    int m_pictureWidth =
        0; ///< Pixels of the chart, however large it was drawn; kept while there is no picture.
    int m_pictureHeight = 0;
    bool m_fitMode = true; ///< Fitted to the pane; else at natural size with scroll bars.

    CChartColor m_sampleColor;
    CChartFont m_sampleFont;
    CChartString m_sampleImage; ///< Path of an image file.

    CChartLayout m_ownLayout;
    const CChartLayout* m_layout = nullptr; ///< The layout to draw with: m_ownLayout or another's. Not owned.

    CXYChart m_ownXYChart;
    CXYChart* m_chart = nullptr;             ///< The XY chart to draw: m_ownXYChart or another's. Not owned.
    CXYChartLayer* m_previewLayer = nullptr; ///< The layer to draw in single-layer mode. Not owned.
    CPolarChart m_ownPolarChart;
    CPolarChart* m_polarChart =
        nullptr; ///< The polar chart to draw: m_ownPolarChart or another's. Not owned.
    CPolarLayer* m_polarLayer = nullptr; ///< The layer to draw in single-layer mode. Not owned.
    bool m_singleLayerMode = false;      ///< Draw only m_previewLayer or m_polarLayer of the chart.

    CPieChart m_ownPieChart;
    CFinanceChart m_ownFinanceChart;
    CAngularMeter m_ownAngularMeter;
    CLinearMeter m_ownLinearMeter;
};

/// Makes the picture of a finished chart and leaves it in the preview; for a null preview it is only made.
/// Where no picture can be made the preview has none.
void StorePicture(CChartPreview* view, BaseChart* chart);
