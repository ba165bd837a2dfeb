#pragma once

/// @file
/// What all charts share: size, background, titles, data labels, legend, and a plot area for each kind.

#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>
#include <charteditors/containers.h>

/// One title line of a chart.
class CHARTEDITORS_API CChartTitle {
public:
    CChartTitle();
    CChartTitle(const CChartTitle& other);
    CChartTitle& operator=(const CChartTitle& other);
    ~CChartTitle();

    bool m_show = false;          ///< Whether the title is drawn. Default false.
    std::int32_t m_alignment = 8; ///< Alignment code in the picture. Default 8, top centre.
    CChartString m_text;          ///< Default empty.
    CChartFont m_font;            ///< Default the default font.
    CChartColor m_fontColor;      ///< Default General 0.
    CChartColor m_backColor;      ///< Default General 0xFFFFFFFF.
    CChartColor m_edgeColor;      ///< Default General 0xFFFFFFFF.
    CChartRaisedEffect m_effect;  ///< Default flat.
    double m_angle = 0;           ///< Degrees. Default 0.
    bool m_vertical = false;      ///< Letters stacked from top to bottom. Default false.
    bool m_usePosition = false;   ///< Place by m_x and m_y, not by m_alignment. Default false.
    std::int32_t m_x = 0;         ///< Pixels from the left. Default 0.
    std::int32_t m_y = 0;         ///< Pixels from the top. Default 0.
};

/// One free text on a meter.
class CHARTEDITORS_API CChartTextBox {
public:
    CChartTextBox();
    CChartTextBox(const CChartTextBox& other);
    CChartTextBox& operator=(const CChartTextBox& other);
    ~CChartTextBox();

    CChartString m_text;          ///< Default empty.
    std::int32_t m_x = 0;         ///< Pixels from the left. Default 0.
    std::int32_t m_y = 0;         ///< Pixels from the top. Default 0.
    double m_angle = 0;           ///< Degrees. Default 0.
    bool m_vertical = false;      ///< Letters stacked from top to bottom. Default false.
    std::int32_t m_alignment = 5; ///< Alignment code of the text about its point. Default 5, centre.
    CChartFont m_font;            ///< Default the default font.
    CChartColor m_fontColor;      ///< Default General 0.
    CChartColor m_backColor;      ///< Default General 0xFFFFFF.
    CChartColor m_edgeColor;      ///< Default General 0xFF000000.
    CChartRaisedEffect m_effect;  ///< Default flat.
};

/// Plot area of an XY chart, in pixels. A plain record.
class CHARTEDITORS_API CXYChartPA {
public:
    CXYChartPA();
    CXYChartPA(const CXYChartPA& other) = default;
    CXYChartPA& operator=(const CXYChartPA& other);

    std::int32_t m_left = 0;   ///< Default 0.
    std::int32_t m_top = 0;    ///< Default 0.
    std::int32_t m_width = 0;  ///< Default 0.
    std::int32_t m_height = 0; ///< Default 0.
};

/// Circle of a pie or a polar chart, in pixels. A plain record.
class CHARTEDITORS_API CPieChartPA {
public:
    CPieChartPA();
    CPieChartPA(const CPieChartPA& other) = default;
    CPieChartPA& operator=(const CPieChartPA& other);

    std::int32_t m_centerX = 0; ///< Default 0.
    std::int32_t m_centerY = 0; ///< Default 0.
    std::int32_t m_radius = 0;  ///< Default 0.
};

/// Circle and sweep of an angular meter, lengths in pixels. A plain record.
class CHARTEDITORS_API CAngularMeterPA {
public:
    CAngularMeterPA();
    CAngularMeterPA(const CAngularMeterPA& other) = default;
    CAngularMeterPA& operator=(const CAngularMeterPA& other);

    std::int32_t m_centerX = 0;  ///< Default 0.
    std::int32_t m_centerY = 0;  ///< Default 0.
    std::int32_t m_radius = 0;   ///< Default 0.
    double m_startAngle = -90.0; ///< Degrees clockwise from straight up. Default -90.
    double m_endAngle = 90.0;    ///< Degrees clockwise from straight up. Default 90.
};

/// Bar of a linear meter, lengths in pixels. A plain record.
class CHARTEDITORS_API CLinearMeterPA {
public:
    CLinearMeterPA();
    CLinearMeterPA(const CLinearMeterPA& other) = default;
    CLinearMeterPA& operator=(const CLinearMeterPA& other);

    std::int32_t m_left = 0;    ///< Default 0.
    std::int32_t m_top = 0;     ///< Default 0.
    std::int32_t m_width = 0;   ///< Default 0.
    std::int32_t m_height = 0;  ///< Default 0.
    std::int32_t m_axisPos = 4; ///< Side code of where the scale stands. Default 4, left.
    bool m_reverse = false;     ///< Values run the other way. Default false.
};

/// What all kinds of chart share. A new one is laid out by SetChartSize(500, 550).
class CHARTEDITORS_API CChartLayout {
public:
    CChartLayout();
    CChartLayout(const CChartLayout& other);
    CChartLayout& operator=(const CChartLayout& other);
    ~CChartLayout();

    /// Sets the size of the picture and lays out every plot area, m_financeWidth and the legend's position to
    /// fit it; the side of a plot area is taken from the width alone. Earlier edits of those fields are
    /// overwritten, all other fields stay. Any number is taken as it stands, also 0 and less.
    void SetChartSize(int width, int height);

    std::int32_t m_width = 0;          ///< Picture width in pixels. Default 500.
    std::int32_t m_height = 0;         ///< Picture height in pixels. Default 550.
    std::int32_t m_chartType = 1;      ///< Chart shown by the layout editor: 0 pie, 1 XY, 2 finance, 3 polar,
                                       ///< 4 angular meter, 5 linear meter. Default 1.
    CChartColor m_backColor;           ///< Default General 0xFFFFFF.
    CChartColor m_edgeColor;           ///< Default General 0x33808080.
    bool m_useWallPaper = false;       ///< Whether m_wallPaperImage is drawn. Default false.
    CChartString m_wallPaperImage;     ///< Path of the image file. Default empty.
    bool m_roundedFrame = false;       ///< Whether the corners are round. Default false.
    CChartFont m_defaultFont;          ///< The font of every text that has none. Default the default font.
    CChartRaisedEffect m_effect;       ///< Of the background. Default flat.
    bool m_showToolTip = false;        ///< Default false.
    CChartString m_toolTipFormat;      ///< Default "{xLabel}:{value}".
    CXYChartPA m_xyPlotArea;           ///< Default 50, 75, 400, 400.
    CPieChartPA m_piePlotArea;         ///< Default 250, 275, 160.
    CPieChartPA m_polarPlotArea;       ///< Default 250, 275, 200.
    CAngularMeterPA m_angularPlotArea; ///< Default 250, 275, 200, from -90 to 90 degrees.
    CLinearMeterPA m_linearPlotArea;   ///< Default 225, 75, 50, 400, scale on the left, not reversed.
    std::int32_t m_financeWidth = 0;   ///< Width of a finance chart in pixels. Default 500.
    CChartTitles m_titles;             ///< In drawing order. Default empty.
    bool m_showLabel = true;           ///< Whether data labels are drawn. Default true.
    CChartString m_labelFormat;        ///< Default "{value}".
    CChartFont m_labelFont;            ///< Default the default font.
    CChartColor m_labelFontColor;      ///< Default General 0.
    CChartColor m_labelBackColor;      ///< Default General 0xFFFFFFFF.
    CChartColor m_labelEdgeColor;      ///< Default General 0xFFFFFFFF.
    CChartRaisedEffect m_labelEffect;  ///< Default flat.
    double m_labelAngle = 0;           ///< Degrees. Default 0.
    bool m_labelVertical = false;      ///< Letters stacked from top to bottom. Default false.
    bool m_showLegend = true;          ///< Whether the legend is drawn. Default true.
    CChartString m_legendFormat;       ///< Default "{dataSetName}".
    CChartFont m_legendFont;           ///< Default the default font.
    CChartColor m_legendFontColor;     ///< Default General 0.
    CChartColor m_legendBackColor;     ///< Default General 0xFFFFFFFF.
    CChartColor m_legendEdgeColor;     ///< Default General 0: a legend has an edge, a label and a title none.
    CChartRaisedEffect m_legendEffect; ///< Default flat.
    bool m_legendVertical = false;     ///< Entries below each other. Default false.
    std::int32_t m_legendX = 0;        ///< Pixels from the left. Default 320.
    std::int32_t m_legendY = 0;        ///< Pixels from the top. Default 12.
};
