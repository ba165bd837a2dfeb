#include "render/xy_axes.h"
#include "render/dressing.h"
#include "render/utf8_text.h"

Axis* XYAxes::Find(const CXYChartAxis* axis) const {
    const int index = look.m_axes.GetAxisIndex(axis);
    return index >= 0 && index < std::ssize(additional) ? additional[static_cast<std::size_t>(index)]
                                                        : nullptr;
}

static void DrawScale(Axis* axis, const CXYChartAxis& look) {
    switch (look.m_scaleType) {
    case 1:
        CAxis_setAutoScale(axis, look.m_topExtension, look.m_bottomExtension, look.m_zeroAffinity);
        break;
    case 2:
        CAxis_setLinearScale(axis, look.m_lowerLimit, look.m_upperLimit, look.m_majorTickInc,
                             look.m_minorTickInc);
        break;
    case 3:
        CAxis_setDateScale(axis, look.m_dateLowerLimit, look.m_dateUpperLimit, look.m_dateMajorTickInc,
                           look.m_dateMinorTickInc);
        break;
    default:
        break; // as it is, or as the axis that it follows
    }
}

static void DrawAxisTitle(BaseChart* chart, Axis* axis, const CXYChartAxisTitle& title) {
    TextBox* textBox = CAxis_setTitle(axis, CUtf8Text(title.m_text), CUtf8Text(title.m_font.m_fileName),
                                      title.m_font.m_size, title.m_fontColor.GetChartColor(chart));
    if (title.m_usePosition)
        CAxis_setTitlePos(axis, title.m_alignment, title.m_gap);
    if (title.m_useAngle)
        CTextBox_setFontAngle(textBox, title.m_angle, title.m_vertical);
    SetBoxBackground(chart, TextBox2Box(textBox), title.m_backColor, title.m_edgeColor, title.m_effect);
}

static void DrawAxisLabels(BaseChart* chart, Axis* axis, const CXYChartAxis& look) {
    TextBox* textBox =
        CAxis_setLabelStyle(axis, CUtf8Text(look.m_labelFont.m_fileName), look.m_labelFont.m_size,
                            look.m_labelFontColor.GetChartColor(chart), 0.0);
    CTextBox_setFontAngle(textBox, look.m_labelAngle, look.m_labelVertical);
    SetBoxBackground(chart, TextBox2Box(textBox), look.m_labelBackColor, look.m_labelEdgeColor,
                     look.m_labelEffect);
    CAxis_setLabelFormat(axis, CUtf8Text(look.m_labelFormat));
    CAxis_setMultiFormat(axis, look.m_filter1, CUtf8Text(look.m_format1), look.m_filter2,
                         CUtf8Text(look.m_format2), 1, true);
}

void DrawAxis(BaseChart* chart, Axis* axis, const CXYChartAxis& look) {
    if (look.m_reverse)
        CAxis_setReverse(axis, true);
    CAxis_setWidth(axis, look.m_width);
    CAxis_setColors(axis, look.m_color.GetChartColor(chart), CHART_TEXT_COLOR, CHART_DEFAULT_COLOR,
                    CHART_DEFAULT_COLOR);
    CAxis_setMargin(axis, look.m_marginTop, look.m_marginBottom);
    CAxis_setLabelStep(axis, look.m_majorStep, look.m_minorStep, look.m_majorOffset, look.m_minorOffset);
    CAxis_setTickLength2(axis, look.m_majorLength, look.m_minorLength);
    CAxis_setTickDensity(axis, look.m_majorSpacing, look.m_minorSpacing);
    DrawScale(axis, look);
    if (look.m_title.m_show)
        DrawAxisTitle(chart, axis, look.m_title);
    DrawAxisLabels(chart, axis, look);
}

/// The axis that a model says to follow; null for none.
static Axis* FollowedAxis(const XYAxes& axes, const CXYChartAxis& look) {
    switch (look.m_syncKind) {
    case 1:
        return CXYChart_xAxis(axes.chart);
    case 2:
        return CXYChart_yAxis(axes.chart);
    case 4: // asking for a second axis would show it
        return axes.look.m_useX2Axis ? CXYChart_xAxis2(axes.chart) : nullptr;
    case 8:
        return axes.look.m_useY2Axis ? CXYChart_yAxis2(axes.chart) : nullptr;
    case 16:
        return axes.Find(look.m_syncAxis);
    default:
        return nullptr;
    }
}

void SyncAxis(const XYAxes& axes, Axis* axis, const CXYChartAxis& look) {
    if (look.m_scaleType != 0)
        return;
    if (Axis* other = FollowedAxis(axes, look))
        CAxis_syncAxis(axis, other, look.m_syncSlope, 0.0);
}
