#pragma once

/// @file
/// One axis of an XY chart, its title, and the list that owns a chart's additional axes.

#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/chart_font.h>

/// Title of an axis.
class CHARTEDITORS_API CXYChartAxisTitle {
public:
    CXYChartAxisTitle();
    CXYChartAxisTitle(const CXYChartAxisTitle& other);
    CXYChartAxisTitle& operator=(const CXYChartAxisTitle& other);
    ~CXYChartAxisTitle();

    bool m_show = false;          ///< Whether the title is drawn. Default false.
    CChartString m_text;          ///< Default empty.
    CChartFont m_font;            ///< Default the default font.
    CChartColor m_fontColor;      ///< Default General 0.
    CChartColor m_backColor;      ///< Default General 0xFFFFFFFF.
    CChartColor m_edgeColor;      ///< Default General 0xFFFFFFFF.
    CChartRaisedEffect m_effect;  ///< Default flat.
    bool m_useAngle = false;      ///< Whether m_angle and m_vertical have an effect. Default false.
    double m_angle = 0;           ///< Degrees. Default 0.
    bool m_vertical = false;      ///< Letters stacked from top to bottom. Default false.
    bool m_usePosition = false;   ///< Whether m_alignment and m_gap have an effect. Default false.
    std::int32_t m_alignment = 2; ///< Alignment code about the axis. Default 2, bottom centre.
    std::int32_t m_gap = 3;       ///< Pixels between axis and title. Default 3.
};

/// One axis. Its scale is chosen by m_scaleType, and only the fields of that scale have an effect.
class CHARTEDITORS_API CXYChartAxis {
public:
    /// Takes the default date limits from the clock: today in universal time, and the same day of the next
    /// month.
    CXYChartAxis();
    CXYChartAxis(const CXYChartAxis& other);
    CXYChartAxis& operator=(const CXYChartAxis& other);
    ~CXYChartAxis();

    std::int32_t m_location = 4;     ///< Side code of where the axis stands. Default 4, left.
    std::int32_t m_offset = 0;       ///< Pixels away from that side. Default 0.
    bool m_reverse = false;          ///< Values run the other way. Default false.
    std::int32_t m_width = 1;        ///< Line width in pixels. Default 1.
    CChartColor m_color;             ///< Of the line. Default General 0.
    std::int32_t m_marginTop = 0;    ///< Pixels left free at the top or right end. Default 0.
    std::int32_t m_marginBottom = 0; ///< Pixels left free at the bottom or left end. Default 0.
    std::int32_t m_majorStep = 0;   ///< Every how many labels one is drawn; 0 the library decides. Default 0.
    std::int32_t m_minorStep = 0;   ///< The same for minor ticks. Default 0.
    std::int32_t m_majorOffset = 0; ///< Labels before the first that is drawn. Default 0.
    std::int32_t m_minorOffset = 0; ///< The same for minor ticks. Default 0.
    std::int32_t m_majorLength = 5; ///< Pixels outwards, less than 0 inwards. Default 5.
    std::int32_t m_minorLength = 0; ///< Pixels outwards, less than 0 inwards. Default 0.
    std::int32_t m_majorSpacing = 0;  ///< Least pixels between major ticks; 0 the library decides. Default 0.
    std::int32_t m_minorSpacing = -1; ///< The same between minor ticks; -1 the library decides. Default -1.
    std::int32_t m_scaleType = 0;     ///< 0 none, 1 automatic, 2 linear, 3 date. Default 0.
    double m_topExtension = 0;        ///< Automatic: part of the axis left free above, 0 to 1. Default 0.
    double m_bottomExtension = 0;     ///< Automatic: part of the axis left free below, 0 to 1. Default 0.
    double m_zeroAffinity = 0;        ///< Automatic: how readily 0 is taken in, 0 to 1. Default 0.
    double m_lowerLimit = 0;          ///< Linear. Default 0.
    double m_upperLimit = 0;          ///< Linear. Default 0.
    double m_majorTickInc = 0;        ///< Linear; 0 the library decides. Default 0.
    double m_minorTickInc = 0;        ///< Linear; 0 the library decides. Default 0.
    double m_dateLowerLimit = 0;      ///< Date, chart time in seconds. Default today at 0:00.
    double m_dateUpperLimit = 0;      ///< Date, chart time in seconds. Default a month later.
    double m_dateMajorTickInc = 0;    ///< Date, seconds; 0 the library decides. Default 0.
    double m_dateMinorTickInc = 0;    ///< Date, seconds; 0 the library decides. Default 0.
    CXYChartAxisTitle m_title;        ///< Default the default title.
    CChartString m_labelFormat;       ///< Default "{value}".
    CChartFont m_labelFont;           ///< Default the default font.
    CChartColor m_labelFontColor;     ///< Default General 0.
    CChartColor m_labelBackColor;     ///< Default General 0xFFFFFFFF.
    CChartColor m_labelEdgeColor;     ///< Default General 0xFFFFFFFF.
    CChartRaisedEffect m_labelEffect; ///< Default flat.
    double m_labelAngle = 0;          ///< Degrees. Default 0.
    bool m_labelVertical = false;     ///< Letters stacked from top to bottom. Default false.
    std::int32_t m_filter1 = 0;       ///< Label filter of m_format1. Default the filter that nothing passes.
    CChartString m_format1;           ///< Label format of the dates that pass m_filter1. Default empty.
    std::int32_t m_filter2 = 0;       ///< Label filter of m_format2. Default the filter that nothing passes.
    CChartString m_format2;           ///< Label format of the dates that pass m_filter2. Default empty.
    double m_syncSlope = 1.0;         ///< Units of this axis for one of the axis it follows. Default 1.
    unsigned char m_syncKind = 0;     ///< The axis this one follows: 0 none, 1 X, 2 Y, 4 X2, 8 Y2,
                                      ///< 16 m_syncAxis. Default 0.
    CXYChartAxis* m_syncAxis = nullptr; ///< Additional axis of the same chart when m_syncKind is 16, or null;
                                        ///< not owned. Default null.
};

/// A list of axes that owns them. Pointers that it gives stay its own, and are good until the axis is
/// deleted. Only GetSafeAxis and SafeAxis look at their index; elsewhere 0 <= index < GetAxisCount().
class CHARTEDITORS_API CXYChartAxisMgr {
public:
    CXYChartAxisMgr(); ///< Empty.
    /// Copies each axis. The copies' m_syncAxis still names the source's axes: the assignment of the owning
    /// CXYChart sets them right.
    CXYChartAxisMgr(const CXYChartAxisMgr& other);
    CXYChartAxisMgr& operator=(const CXYChartAxisMgr& other);
    ~CXYChartAxisMgr();

    void DeleteContents(); ///< Deletes every axis.

    /// A new default axis, or null when memory runs out. It is the caller's until AddAxis.
    static CXYChartAxis* CreateAxis();

    int GetAxisCount() const; ///< How many axes there are.
    bool empty() const;       ///< Whether there is none.

    CXYChartAxis* GetAxis(int index) const;           ///< The axis of that index.
    CXYChartAxis* GetSafeAxis(int index) const;       ///< Null for an index out of range.
    int GetAxisIndex(const CXYChartAxis* axis) const; ///< -1 when `axis` is null or none of this list's.
    CXYChartAxis*
    SafeAxis(const CXYChartAxis* axis) const; ///< `axis` if it is one of this list's, else null.

    /// Appends an axis, takes it over, and returns its index. The axis is the caller's still if this throws.
    int AddAxis(CXYChartAxis* axis);
    /// Overwrites one entry. The old axis is neither deleted nor kept: two calls exchange two entries.
    void SetAxis(CXYChartAxis* axis, int index);
    void DeleteAxis(int index); ///< Deletes one axis; those behind it move up.

private:
    void* m_axes; // the library's own list, null until there is an axis
};
