#pragma once

/// @file
/// The look of a chart with rectangular axes.

#include <charteditors/xy_axis.h>
#include <charteditors/xy_layer.h>

/// A chart with rectangular axes: four standing axes, any number of additional ones, and layers.
///
/// Axes may follow an additional axis, and layers may stand on one; those pointers name axes of this chart's
/// own m_axes. Copying a chart turns them to the copy's own axes, and UpdateRelation clears those whose axis
/// is gone.
class CHARTEDITORS_API CXYChart {
public:
    CXYChart();
    CXYChart(const CXYChart& other);
    /// Copies every field; m_syncAxis of m_xAxis and of m_yAxis, which follow no axis, as it stands.
    CXYChart& operator=(const CXYChart& other);
    ~CXYChart();

    /// Clears every axis pointer, of the layers, m_x2Axis, m_y2Axis and the additional axes, that names no
    /// axis of m_axes. To be called after any change to that list. The kinds stay.
    void UpdateRelation();

    CChartColor m_majorHGridColor;      ///< Horizontal grid lines at major ticks. Default General 0xC0C0C0.
    CChartColor m_majorVGridColor;      ///< Vertical ones. Default General 0xFF000000.
    CChartColor m_minorHGridColor;      ///< Horizontal grid lines at minor ticks. Default General 0xC0C0C0.
    CChartColor m_minorVGridColor;      ///< Vertical ones. Default General 0xFF000000.
    std::int32_t m_majorHGridWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_majorVGridWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_minorHGridWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_minorVGridWidth = 1; ///< Pixels. Default 1.
    CChartColor m_lineColor;            ///< Of the plot area's outline. Default General 0.
    std::int32_t m_lineWidth = 1;       ///< Pixels. Default 1.
    bool m_useBackground = false;       ///< Whether the background fields have an effect. Default false.
    std::int32_t m_backgroundType = 0;  ///< 0 colours, 1 image, 2 four quarters. Default 0.
    CChartColor m_edgeColor;            ///< Default General 0.
    CChartColor m_backColor;            ///< Default General 0xFFFFFF.
    CChartColor m_altColor;             ///< Every second stripe. Default General 0xFFFFFF.
    CChartString m_backImage;           ///< Path of the image file. Default empty.
    CChartColor m_q1Color;              ///< First quarter. Default General 0xFFFFFF.
    CChartColor m_q2Color;              ///< Second quarter. Default General 0xFFFFFF.
    CChartColor m_q3Color;              ///< Third quarter. Default General 0xFFFFFF.
    CChartColor m_q4Color;              ///< Fourth quarter. Default General 0xFFFFFF.
    bool m_swapXY = false;              ///< X and Y change places. Default false.
    CXYChartAxis m_xAxis;               ///< Default at the bottom, automatic.
    CXYChartAxis m_yAxis;               ///< Default at the left, automatic.
    bool m_useX2Axis = false;           ///< Whether m_x2Axis is drawn. Default false.
    CXYChartAxis m_x2Axis;              ///< Default at the top, follows X.
    bool m_useY2Axis = false;           ///< Whether m_y2Axis is drawn. Default false.
    CXYChartAxis m_y2Axis;              ///< Default at the right, follows Y.
    CXYChartAxisMgr m_axes;             ///< Additional axes, owned. Default empty.
    CXYChartLayerMgr m_layers;          ///< Layers from the front to the back, owned. Default empty.
    bool m_show3D = false;              ///< Default false.
    std::int32_t m_depth = 0;           ///< Pixels, 0 or more. Default 0.
    std::int32_t m_zGap = 0;            ///< Pixels between layers, 0 or more. Default 0.
};
