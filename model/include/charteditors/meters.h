#pragma once

/// @file
/// The look of the angular and the linear meter, with their pointers, rings, zones and label style. Values
/// are in the unit of the meter's scale.

#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>
#include <charteditors/containers.h>

/// One pointer of a meter.
class CHARTEDITORS_API CMeterPointer {
public:
    CMeterPointer();
    CMeterPointer(const CMeterPointer& other);
    CMeterPointer& operator=(const CMeterPointer& other);
    ~CMeterPointer();

    double m_value = 0;         ///< Where it points. Default 0.
    CChartColor m_fillColor;    ///< Default General 0.
    CChartColor m_edgeColor;    ///< Default General 0.
    std::int32_t m_shape = 0;   ///< 0 diamond, 1 triangular, 2 arrow, 3 second arrow, 4 line, 5 pencil;
                                ///< anything else is a diamond. Default 0.
    double m_lengthRatio = 1.0; ///< Of the usual length. Default 1.
    double m_widthRatio = 1.0;  ///< Of the usual width. Default 1.
};

/// One ring around the centre of an angular meter.
class CHARTEDITORS_API CAngularRing {
public:
    CAngularRing();
    CAngularRing(const CAngularRing& other);
    CAngularRing& operator=(const CAngularRing& other);
    ~CAngularRing();

    std::int32_t m_startRadius = 0; ///< Pixels. Default 0.
    std::int32_t m_endRadius = 0;   ///< Pixels. Default 0.
    CChartColor m_fillColor;        ///< Default General 0x66FF66.
    CChartColor m_edgeColor;        ///< Default General 0x66FF66.
};

/// One zone of an angular meter or a polar chart. A new one covers nothing.
class CHARTEDITORS_API CMeterZoneAngular {
public:
    CMeterZoneAngular();
    CMeterZoneAngular(const CMeterZoneAngular& other);
    CMeterZoneAngular& operator=(const CMeterZoneAngular& other);
    ~CMeterZoneAngular();

    double m_startValue = 0; ///< Default 0.
    double m_endValue = 0;   ///< Default 0.
    CChartColor m_fillColor; ///< Default General 0x66FF66.
    CChartColor m_edgeColor; ///< Default General 0x66FF66.
};

/// One zone of a linear meter, with its text. A new one covers nothing.
class CHARTEDITORS_API CMeterZoneLinear {
public:
    CMeterZoneLinear();
    CMeterZoneLinear(const CMeterZoneLinear& other);
    CMeterZoneLinear& operator=(const CMeterZoneLinear& other);
    ~CMeterZoneLinear();

    double m_startValue = 0;      ///< Default 0.
    double m_endValue = 0;        ///< Default 0.
    CChartString m_text;          ///< Default empty.
    CChartFont m_font;            ///< Default the default font.
    CChartColor m_fontColor;      ///< Default General 0.
    CChartColor m_backColor;      ///< Default General 0x66FF66.
    CChartColor m_edgeColor;      ///< Default General 0x66FF66.
    CChartRaisedEffect m_effect;  ///< Default flat.
    std::int32_t m_alignment = 5; ///< Alignment code of the text in the zone. Default 5, centre.
    double m_angle = 0;           ///< Degrees. Default 0.
    bool m_vertical = false;      ///< Letters stacked from top to bottom. Default false.
};

/// Look of the labels of a meter's scale, or of a polar chart's radial axis.
class CHARTEDITORS_API CMeterLabelStyle {
public:
    CMeterLabelStyle();
    CMeterLabelStyle(const CMeterLabelStyle& other);
    CMeterLabelStyle& operator=(const CMeterLabelStyle& other);
    ~CMeterLabelStyle();

    CChartFont m_font;           ///< Default the default font.
    CChartColor m_fontColor;     ///< Default General 0.
    CChartColor m_backColor;     ///< Default General 0xFFFFFF.
    CChartColor m_edgeColor;     ///< Default General 0xFF000000.
    CChartRaisedEffect m_effect; ///< Default flat.
    double m_angle = 0;          ///< Degrees. Default 0.
    bool m_vertical = false;     ///< Letters stacked from top to bottom. Default false.
};

/// An angular meter. A new one is a scale from 0 to 100 without a pointer.
class CHARTEDITORS_API CAngularMeter {
public:
    CAngularMeter();
    CAngularMeter(const CAngularMeter& other);
    CAngularMeter& operator=(const CAngularMeter& other);
    ~CAngularMeter();

    std::int32_t m_axisWidth = 0;      ///< Pixels. Default 0.
    std::int32_t m_majorTickWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_minorTickWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_microTickWidth = 1; ///< Pixels. Default 1.
    double m_lowerLimit = 0;           ///< Default 0.
    double m_upperLimit = 100.0;       ///< Default 100.
    double m_majorTickInc = 10.0;      ///< Default 10.
    double m_minorTickInc = 5.0;       ///< Default 5.
    double m_microTickInc = 1.0;       ///< Default 1.
    CMeterZoneAngulars m_zones;        ///< Default empty.
    CChartTextBoxs m_texts;            ///< Default empty.
    CMeterPointers m_pointers;         ///< Default empty.
    CAngularRings m_rings;             ///< Default empty.
    bool m_useLabelStyle = false;      ///< Whether m_labelStyle has an effect. Default false.
    CMeterLabelStyle m_labelStyle;     ///< Default the default style.
};

/// A linear meter. A new one is a scale from 0 to 100 without a pointer.
class CHARTEDITORS_API CLinearMeter {
public:
    CLinearMeter();
    CLinearMeter(const CLinearMeter& other);
    CLinearMeter& operator=(const CLinearMeter& other);
    ~CLinearMeter();

    std::int32_t m_axisWidth = 0;      ///< Pixels; the editor does not show it. Default 0.
    std::int32_t m_majorTickWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_minorTickWidth = 1; ///< Pixels. Default 1.
    std::int32_t m_microTickWidth = 1; ///< Pixels. Default 1.
    double m_lowerLimit = 0;           ///< Default 0.
    double m_upperLimit = 100.0;       ///< Default 100.
    double m_majorTickInc = 10.0;      ///< Default 10.
    double m_minorTickInc = 5.0;       ///< Default 5.
    double m_microTickInc = 1.0;       ///< Default 1.
    CMeterZoneLinears m_zones;         ///< Default empty.
    CChartTextBoxs m_texts;            ///< Default empty.
    CMeterPointers m_pointers;         ///< Default empty.
    bool m_useLabelStyle = false;      ///< Whether m_labelStyle has an effect. Default false.
    CMeterLabelStyle m_labelStyle;     ///< Default the default style.
};
