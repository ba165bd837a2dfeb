#pragma once

/// @file
/// Border and lighting of a box.

#include <charteditors/base.h>

/// Border and lighting of a box. A plain record.
class CHARTEDITORS_API CChartRaisedEffect {
public:
    CChartRaisedEffect(); ///< Flat.
    CChartRaisedEffect(const CChartRaisedEffect& other) = default;
    CChartRaisedEffect& operator=(const CChartRaisedEffect& other);

    /// The number that the drawing library takes as a raised effect.
    int GetRaisedEffect() const;

    std::int32_t m_effectType = 0; ///< 0 plain border, 1 soft lighting, 2 reduced glare, 3 normal glare;
                                   ///< anything else is a plain border. Default 0.
    std::int32_t m_value = 0;      ///< Size in pixels; in a plain border, greater than 0 is raised, less is
                                   ///< depressed, 0 is flat. Default 0.
    std::int32_t m_direction = 8;  ///< Side code of where the light comes from. Default 8, top.
};
