#pragma once

/// @file
/// One choice of colour: a plain value, a pattern image or a metal gradient.

#include <charteditors/chart_string.h>

struct BaseChart; // a chart of the drawing library, see chartdraw/surface.h

/// One colour choice.
class CHARTEDITORS_API CChartColor {
public:
    CChartColor(); ///< General, opaque black.
    CChartColor(const CChartColor& other);
    CChartColor& operator=(const CChartColor& other);
    ~CChartColor();

    /// The number that the drawing library takes as a colour. General and metal colours need no chart, which
    /// may then be null. A pattern is an object of `chart` and lives as long; without a chart it is 0.
    /// Any other kind is 0, opaque black.
    int GetChartColor(BaseChart* chart) const;

    std::int32_t m_type = 0;      ///< 0 General, 1 Pattern, 2 Metal. Default 0.
    std::uint32_t m_color = 0;    ///< General: the colour value. Metal: the base colour value. Default 0.
    std::int32_t m_direction = 0; ///< Metal: the angle of the gradient in degrees. Default 0.
    CChartString m_patternFile;   ///< Pattern: path of the image file. Default empty.
};
