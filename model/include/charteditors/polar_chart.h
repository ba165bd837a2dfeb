#pragma once

/// @file
/// The look of a polar chart, its layers and the list that owns them. Values are in the unit of the chart's
/// radial scale, angles in degrees clockwise from straight up.

#include <charteditors/meters.h>

/// Look of the labels around a polar chart.
class CHARTEDITORS_API CPolarLabelStyleAngular {
public:
    CPolarLabelStyleAngular();
    CPolarLabelStyleAngular(const CPolarLabelStyleAngular& other);
    CPolarLabelStyleAngular& operator=(const CPolarLabelStyleAngular& other);
    ~CPolarLabelStyleAngular();

    CChartFont m_font;            ///< Default the default font.
    CChartColor m_fontColor;      ///< Default General 0.
    CChartColor m_backColor;      ///< Default General 0xFFFFFF.
    CChartColor m_edgeColor;      ///< Default General 0xFF000000.
    CChartRaisedEffect m_effect;  ///< Default flat.
    std::int32_t m_alignment = 5; ///< Alignment code about the label's point. Default 5, centre.
    double m_angle = 0;           ///< Degrees. Default 0.
    bool m_vertical = false;      ///< Letters stacked from top to bottom. Default false.
};

/// What all polar layers have in common. The kinds are told apart by GetType. Assigning is done kind by kind
/// and not through the base: see CPolarLayerMgr::CopyLayer.
class CHARTEDITORS_API CPolarLayer {
public:
    CPolarLayer(); ///< A layer of no kind, with a random seed.
    CPolarLayer(const CPolarLayer& other);
    CPolarLayer& operator=(const CPolarLayer& other);
    virtual ~CPolarLayer();

    int GetType() const; ///< 0 line, 1 spline line, 2 area, 3 spline area; -1 for the bare base.
    int GetSeed() const; ///< Seed of the layer's sample data.

    std::int32_t m_type = -1;      ///< See GetType; set by the constructors, not to be changed.
    CChartColor m_color;           ///< Default General 0x33FF33.
    CChartString m_name;           ///< Default empty.
    std::int32_t m_lineWidth = 2;  ///< Pixels; 0 draws symbols alone. Default 2.
    std::int32_t m_symbolType = 0; ///< 0 none, 1 square, 2 diamond, 3 triangle, 4 triangle to the right, 5 to
                                   ///< the left, 6 inverted triangle, 7 circle, 8 cross, 9 slanted cross.
                                   ///< Default 0.
    std::int32_t m_symbolSize = 11; ///< Pixels. Default 11.
    CChartColor m_fillColor;        ///< Of a symbol. Default General 0xFF3333.
    CChartColor m_edgeColor;        ///< Of a symbol. Default General 0.
    bool m_useSymbolScale = false;  ///< Symbols sized by a value of their own. Default false.
    std::int32_t m_seed;            ///< See GetSeed. Default a random number, 0 or more.
};

/// Straight lines.
class CHARTEDITORS_API CPolarLineLayer : public CPolarLayer {
public:
    CPolarLineLayer();
    CPolarLineLayer(const CPolarLineLayer& other);
    CPolarLineLayer& operator=(const CPolarLineLayer& other);
    ~CPolarLineLayer() override;

    bool m_closeLoop = false; ///< Whether the last point is joined to the first. Default false.
};

/// Curved lines.
class CHARTEDITORS_API CPolarSplineLineLayer : public CPolarLineLayer {
public:
    CPolarSplineLineLayer();
    CPolarSplineLineLayer(const CPolarSplineLineLayer& other);
    CPolarSplineLineLayer& operator=(const CPolarSplineLineLayer& other);
    ~CPolarSplineLineLayer() override;
};

/// A filled area with straight sides.
class CHARTEDITORS_API CPolarAreaLayer : public CPolarLayer {
public:
    CPolarAreaLayer();
    CPolarAreaLayer(const CPolarAreaLayer& other);
    CPolarAreaLayer& operator=(const CPolarAreaLayer& other);
    ~CPolarAreaLayer() override;
};

/// A filled area with curved sides.
class CHARTEDITORS_API CPolarSplineAreaLayer : public CPolarLayer {
public:
    CPolarSplineAreaLayer();
    CPolarSplineAreaLayer(const CPolarSplineAreaLayer& other);
    CPolarSplineAreaLayer& operator=(const CPolarSplineAreaLayer& other);
    ~CPolarSplineAreaLayer() override;
};

/// A list of polar layers that owns them. Pointers that it gives stay its own, and are good until the layer
/// is deleted. An index must be in range, 0 <= index < GetLayerCount().
class CHARTEDITORS_API CPolarLayerMgr {
public:
    CPolarLayerMgr(); ///< Empty.
    CPolarLayerMgr(const CPolarLayerMgr& other);
    CPolarLayerMgr& operator=(const CPolarLayerMgr& other);
    ~CPolarLayerMgr();

    void DeleteContents();                  ///< Deletes every layer.
    int GetLayerCount() const;              ///< How many layers there are.
    CPolarLayer* GetLayer(int index) const; ///< The layer of that index.

    /// Appends a layer, takes it over, and returns its index. The layer is the caller's still if this throws.
    int AddLayer(CPolarLayer* layer);
    /// The same in front of `index`, which may be GetLayerCount().
    void InsertLayer(CPolarLayer* layer, int index);
    void DeleteLayer(int index); ///< Deletes one layer; those behind it move up.

    /// A new default layer of a kind, see CPolarLayer::GetType; null for any other number, and when memory
    /// runs out. It is the caller's until AddLayer or InsertLayer.
    static CPolarLayer* CreateLayer(int type);
    /// Copies every field, seed too, between layers of one kind, and returns 1; otherwise 0, and nothing
    /// changes. Mind the order: the source comes first.
    static int CopyLayer(CPolarLayer* from, CPolarLayer* to);
    /// A copy made by CreateLayer and CopyLayer; null when either fails. It is the caller's.
    static CPolarLayer* CloneLayer(CPolarLayer* layer);

private:
    void* m_layers; // the library's own list, null until there is a layer
};

/// A polar chart.
class CHARTEDITORS_API CPolarChart {
public:
    CPolarChart();
    CPolarChart(const CPolarChart& other);
    CPolarChart& operator=(const CPolarChart& other);
    ~CPolarChart();

    bool m_polygonGrid = false;          ///< true a polygon, false circles. Default false.
    bool m_gridOnTop = true;             ///< Grid above the layers. Default true.
    std::int32_t m_radialGridWidth = 1;  ///< Pixels. Default 1.
    CChartColor m_radialGridColor;       ///< Default General 0x80000000, half-transparent black.
    std::int32_t m_angularGridWidth = 1; ///< Pixels. Default 1.
    CChartColor m_angularGridColor;      ///< Default General 0x80000000, half-transparent black.
    bool m_useLinearScale = false;       ///< Whether the limits and increments have an effect. Default false.
    double m_lowerLimit = 0;             ///< Default 0.
    double m_upperLimit = 360.0;         ///< Default 360.
    double m_majorTickInc = 30.0;        ///< Default 30.
    double m_minorTickInc = 0;           ///< 0 the library decides. Default 0.
    CChartColor m_backColor;             ///< Default General 0xFF000000.
    std::int32_t m_edgeWidth = 1;        ///< Pixels. Default 1.
    CChartColor m_edgeColor;             ///< Default General 0xFF000000.
    bool m_useAltBgColor = false;        ///< Whether m_bgColor1 and m_bgColor2 alternate. Default false.
    CChartColor m_bgColor1;              ///< Default General 0xDDDDDD.
    CChartColor m_bgColor2;              ///< Default General 0xEEEEEE.
    bool m_altBgRing = true;             ///< true rings alternate, false sectors. Default true.
    bool m_useAngularLabelStyle = false; ///< Whether m_angularLabelStyle has an effect. Default false.
    CPolarLabelStyleAngular m_angularLabelStyle; ///< Default the default style.
    bool m_showAngularLabels = false;            ///< Whether m_angularLabels are drawn. Default false.
    CChartStrings m_angularLabels;               ///< The label texts, clockwise. Default empty.
    bool m_useRadialLabelStyle = false;          ///< Whether m_radialLabelStyle has an effect. Default false.
    CMeterLabelStyle m_radialLabelStyle;         ///< Default the default style.
    CMeterZoneAngulars m_angularZones;           ///< Between two angles. Default empty.
    CMeterZoneAngulars m_radialZones;            ///< Between two values. Default empty.
    CPolarLayerMgr m_layers;                     ///< Layers from the front to the back, owned. Default empty.
};
