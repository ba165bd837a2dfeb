#pragma once

/// @file
/// One choice of font.

#include <charteditors/chart_string.h>

/// One font choice.
class CHARTEDITORS_API CChartFont {
public:
    CChartFont();
    CChartFont(const CChartFont& other);
    CChartFont& operator=(const CChartFont& other);
    ~CChartFont();

    CChartString m_faceName; ///< The face's display name. Default "(Default)".
    CChartString m_fileName; ///< Font file as the drawing library takes it, a name or a path, with
                             ///< "|n" behind it for face n of a collection. Default "gulim.ttc".
    double m_size = 12.0;    ///< Points. Default 12.
};
