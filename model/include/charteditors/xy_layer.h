#pragma once

/// @file
/// The layers of an XY chart and the list that owns them.

#include <charteditors/chart_color.h>
#include <charteditors/chart_effect.h>
#include <charteditors/containers.h>

class CXYChartAxis;

/// What all layers have in common. The kinds are told apart by GetType. Assigning is done kind by kind and
/// not through the base: see CXYChartLayerMgr::CopyLayer.
class CHARTEDITORS_API CXYChartLayer {
public:
    CXYChartLayer(); ///< A layer of no kind, with a random seed.
    CXYChartLayer(const CXYChartLayer& other);
    CXYChartLayer& operator=(const CXYChartLayer& other);
    virtual ~CXYChartLayer();

    int GetType() const; ///< 0 bar, 1 line, 2 scatter, 3 area, 4 box-whisker, 5 box, 6 high-low-open-close,
                         ///< 7 Gantt, 8 candlestick; -1 for the bare base.
    int GetSeed() const; ///< Seed of the layer's sample data.

    std::int32_t m_seed;             ///< See GetSeed. Default a random number, 0 or more.
    std::int32_t m_type = -1;        ///< See GetType; set by the constructors, not to be changed.
    CChartString m_name;             ///< Default empty.
    unsigned char m_yAxisKind = 2;   ///< The layer's Y axis: 2 Y, 8 Y2, 16 m_yAxis. Default 2.
    CXYChartAxis* m_yAxis = nullptr; ///< Additional axis of the same chart when m_yAxisKind is 16, or null;
                                     ///< not owned. Default null.
};

/// Bars.
class CHARTEDITORS_API CXYBarLayer : public CXYChartLayer {
public:
    CXYBarLayer();
    CXYBarLayer(const CXYBarLayer& other);
    CXYBarLayer& operator=(const CXYBarLayer& other);
    ~CXYBarLayer() override;

    std::int32_t m_shape = 0; ///< 0 none, 1 square, 2 diamond, 3 triangle, 4 triangle to the right, 5 to the
                              ///< left, 6 inverted triangle, 7 circle, 10 circle without shading. Default 0.
    std::int32_t m_combineMethod = 3; ///< 0 overlay, 1 stack, 3 side by side, 4 percentage. Default 3.
    bool m_aggregateLabel = true;     ///< A label for the whole bar. Default true.
    bool m_labelForEachSeg = true;    ///< A label for each data set in it. Default true.
    bool m_useOverlap = true;         ///< true m_overlapRatio, false the gaps have an effect. Default true.
    double m_overlapRatio = 0.5;      ///< Part of a bar covered by its neighbour. Default 0.5.
    bool m_firstOnTop = true;         ///< Which of overlapping bars covers the other. Default true.
    double m_barGap = 0.2;            ///< Part of a bar's place left free. Default 0.2.
    double m_subBarGap = 0;           ///< The same between bars of one place. Default 0.
    bool m_useBorderColor = false;    ///< Whether m_edgeColor and m_effect have an effect. Default false.
    CChartColor m_edgeColor;          ///< Default General 0.
    CChartRaisedEffect m_effect;      ///< Default flat.
    CChartColors m_dataSetColors;     ///< One for each data set. Default empty.
};

/// Lines.
class CHARTEDITORS_API CXYLineLayer : public CXYChartLayer {
public:
    CXYLineLayer();
    CXYLineLayer(const CXYLineLayer& other);
    CXYLineLayer& operator=(const CXYLineLayer& other);
    ~CXYLineLayer() override;

    std::int32_t m_lineType = 0;   ///< 0 straight, 1 spline, 2 steps. Default 0.
    CChartColor m_color;           ///< Default General 0.
    std::int32_t m_lineWidth = 1;  ///< Pixels. Default 1.
    std::int32_t m_symbolType = 0; ///< 0 none, 1 square, 2 diamond, 3 triangle, 4 triangle to the right,
                                   ///< 5 to the left, 6 inverted triangle, 7 circle, 8 cross, 9 slanted
                                   ///< cross. Default 0.
    std::int32_t m_symbolSize = 9; ///< Pixels. Default 9.
    CChartColor m_fillColor;       ///< Of a symbol. Default General 0xFF3333.
    CChartColor m_edgeColor;       ///< Of a symbol. Default General 0.
};

/// Points or bubbles.
class CHARTEDITORS_API CXYScatterLayer : public CXYChartLayer {
public:
    CXYScatterLayer();
    CXYScatterLayer(const CXYScatterLayer& other);
    CXYScatterLayer& operator=(const CXYScatterLayer& other);
    ~CXYScatterLayer() override;

    std::int32_t m_symbolType = 1; ///< As CXYLineLayer::m_symbolType. Default 1, square.
    bool m_bubble = false;         ///< Symbols sized by a value of their own. Default false.
    std::int32_t m_symbolSize = 9; ///< Pixels. Default 9.
    bool m_useSymbolColor = false; ///< Whether m_symbolColor has an effect. Default false.
    CChartColor m_symbolColor;     ///< Default General 0xFF3333.
};

/// Areas.
class CHARTEDITORS_API CXYAreaLayer : public CXYChartLayer {
public:
    CXYAreaLayer();
    CXYAreaLayer(const CXYAreaLayer& other);
    CXYAreaLayer& operator=(const CXYAreaLayer& other);
    ~CXYAreaLayer() override;

    std::int32_t m_combineMethod = 1; ///< 1 stack, 4 percentage. Default 1.
    bool m_useAreaColor = false;      ///< Whether m_areaColor has an effect. Default false.
    CChartColor m_areaColor;          ///< Default General 0xFF3333.
};

/// Boxes with whiskers.
class CHARTEDITORS_API CXYBoxWhiskerLayer : public CXYChartLayer {
public:
    CXYBoxWhiskerLayer();
    CXYBoxWhiskerLayer(const CXYBoxWhiskerLayer& other);
    CXYBoxWhiskerLayer& operator=(const CXYBoxWhiskerLayer& other);
    ~CXYBoxWhiskerLayer() override;

    CChartColor m_fillColor;    ///< Default General 0x9999FF.
    CChartColor m_whiskerColor; ///< Default General 0xCC.
};

/// Boxes that share a name and a colour.
class CHARTEDITORS_API CBoxGroup {
public:
    CBoxGroup();
    CBoxGroup(const CBoxGroup& other);
    CBoxGroup& operator=(const CBoxGroup& other);
    ~CBoxGroup();

    CChartString m_name; ///< Default empty.
    CChartColor m_color; ///< Default General 0xFF00.
};

/// Boxes.
class CHARTEDITORS_API CXYBoxLayer : public CXYChartLayer {
public:
    CXYBoxLayer();
    CXYBoxLayer(const CXYBoxLayer& other);
    CXYBoxLayer& operator=(const CXYBoxLayer& other);
    ~CXYBoxLayer() override;

    CBoxGroup m_group; ///< Default the default group.
};

/// High-low-open-close bars.
class CHARTEDITORS_API CXYHLOCLayer : public CXYChartLayer {
public:
    CXYHLOCLayer();
    CXYHLOCLayer(const CXYHLOCLayer& other);
    CXYHLOCLayer& operator=(const CXYHLOCLayer& other);
    ~CXYHLOCLayer() override;

    CChartColor m_upColor;   ///< Default General 0x8000.
    CChartColor m_downColor; ///< Default General 0xFF0000.
};

/// Gantt bars.
class CHARTEDITORS_API CXYGanttLayer : public CXYChartLayer {
public:
    CXYGanttLayer();
    CXYGanttLayer(const CXYGanttLayer& other);
    CXYGanttLayer& operator=(const CXYGanttLayer& other);
    ~CXYGanttLayer() override;

    CBoxGroups m_groups; ///< Default empty.
};

/// Candlesticks.
class CHARTEDITORS_API CXYCandleStickLayer : public CXYChartLayer {
public:
    CXYCandleStickLayer();
    CXYCandleStickLayer(const CXYCandleStickLayer& other);
    CXYCandleStickLayer& operator=(const CXYCandleStickLayer& other);
    ~CXYCandleStickLayer() override;

    CChartColor m_riseColor; ///< Default General 0xFF00.
    CChartColor m_fallColor; ///< Default General 0xFF0000.
};

/// A list of layers that owns them. Pointers that it gives stay its own, and are good until the layer is
/// deleted. An index must be in range, 0 <= index < GetLayerCount().
class CHARTEDITORS_API CXYChartLayerMgr {
public:
    CXYChartLayerMgr(); ///< Empty.
    /// Clones each layer. The clones' m_yAxis still names the source's axes: the assignment of the owning
    /// CXYChart sets them right.
    CXYChartLayerMgr(const CXYChartLayerMgr& other);
    CXYChartLayerMgr& operator=(const CXYChartLayerMgr& other);
    ~CXYChartLayerMgr();

    void DeleteContents();                    ///< Deletes every layer.
    int GetLayerCount() const;                ///< How many layers there are.
    bool empty() const;                       ///< Whether there is none.
    CXYChartLayer* GetLayer(int index) const; ///< The layer of that index.

    /// Appends a layer, takes it over, and returns its index. The layer is the caller's still if this throws.
    int AddLayer(CXYChartLayer* layer);
    /// The same in front of `index`, which may be GetLayerCount().
    void InsertLayer(CXYChartLayer* layer, int index);
    /// Overwrites one entry. The old layer is neither deleted nor kept: two calls exchange two entries.
    void SetLayer(CXYChartLayer* layer, int index);
    void DeleteLayer(int index); ///< Deletes one layer; those behind it move up.

    /// A new default layer of a kind, see CXYChartLayer::GetType; null for any other number, and when memory
    /// runs out. It is the caller's until AddLayer or InsertLayer.
    static CXYChartLayer* CreateLayer(int type);
    /// Copies every field, seed and axis pointer too, between layers of one kind, and returns 1; otherwise 0,
    /// and nothing changes. Mind the order: the source comes first.
    static int CopyLayer(CXYChartLayer* from, CXYChartLayer* to);
    /// A copy made by CreateLayer and CopyLayer; null when either fails. It is the caller's.
    static CXYChartLayer* CloneLayer(CXYChartLayer* layer);

private:
    void* m_layers; // the library's own list, null until there is a layer
};
