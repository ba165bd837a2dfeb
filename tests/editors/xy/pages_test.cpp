// The controls of the XY editor and of its dialogs for an axis and a layer: one row each.

#include "tests/editors/xy/charts.h"

using namespace driver;
using namespace xy_test;

namespace {
Properties GridRows(const char* group, const std::string& prefix) {
    const std::string tab = "General";
    Properties rows;
    for (const auto& [label, letter] : {std::pair("Horz", "H"), std::pair("Vert", "V")}) {
        const std::string field = prefix + letter + "Grid";
        rows.push_back({tab, group, label, "4", field + "Width=4", {1, 0}, false});
        rows.push_back({tab, group, std::string(label) + " Color", "Metal", field + "Color.type=metal", {}, false});
    }
    return rows;
}

const Properties kChartRows = GridRows("Major Grid:", "major") + GridRows("Minor Grid:", "minor") +
                              Properties{
                                  {"General", "Line:", "Width:", "4", "lineWidth=4", {1, 0}},
                                  {"General", "Line:", "Line Color", "Metal", "lineColor.type=metal", {}, false},
                                  {"Background", "", "Use Background", "", "useBackground=false", {}, false},
                                  {"Background", "Type:", "4Q", "", "backgroundType=quarters", {}, false},
                                  {"Background", "Type:", "Image", "", "backgroundType=image", {}, false},
                                  {"Background", "Type:", "Image...", CHART_IMAGE, "backImage=" CHART_IMAGE, {}, false},
                                  {"Axis", "", "Swap XY", "", "swapXY=true"},
                                  {"Axis", "Secondary X Axis (X2)", "Use X2 Axis", "", "useX2Axis=true"},
                                  {"Axis", "Secondary Y Axis (Y2)", "Use Y2 Axis", "", "useY2Axis=true"},
                                  {"Layer", "3D:", "Show 3D", "", "show3D=true", {}, false},
                                  {"Layer", "3D:", "Depth:", "12", "depth=12", {1, 0}, false},
                                  {"Layer", "3D:", "Z Gap:", "3", "zGap=3", {1, 0}, false},
                                  {"Layer", "Layer Y Axis:", "Y2", "", "layers[0].yAxisKind=y2", {}, false},
                              } +
                              ColorRows("Background", "Type:", "", {"backColor", "altColor", "edgeColor"});

/// What shows in a chart of four quarters, with a layer on the first of two additional axes.
Properties OtherChartRows() {
    Properties rows = {
        {"Background", "Type:", "Color", "", "backgroundType=colors", {}, false},
        {"Layer", "Layer Y Axis:", "Y", "", "layers[0]", {}, false}, // its kind, and no axis
        {"Layer", "Layer Y Axis:", "Axis", "Axis 1|Axis 2", "layers[0].yAxis=1", {}, false},
    };
    for (const char quarter : {'1', '2', '3', '4'})
        rows.push_back({"Background", "4Q Back Color:", std::string("Q") + quarter, "Metal",
                        std::string("q") + quarter + "Color.type=metal", Number(),
                        quarter == '1' || quarter == '4'}); // the others lie beyond the axes
    return rows;
}

/// The pages of the first additional axis, which alone has every property.
Properties AxisRows() {
    const auto at = [](const char* tab) { return std::string("Axis>Additional|Modify...>") + tab; };
    const std::string general = at("General"), ticks = at("Tick"), scale = at("Scale"), title = at("Title"),
                      label = at("Label"), formats = "---------------------------------|{label}|{value}|{percent}%";
    const std::string filters =
        "StartOfHour|StartOfDay|StartOfWeek|StartOfMonth|StartOfYear|RegularSpacing|AllPass|NonePass";
    Properties rows = {
        {general, "", "Location:", kSides, "location=bottom"},
        {general, "", "Offset:", "-55", "offset=-55"},
        {general, "", "Width:", "4", "width=4", {1, 0}},
        {general, "", "Color:", "Metal", "color.type=metal"},
        {general, "", "Reverse", "", "reverse=true"},
        {general, "Margin:", "Top(Right):", "19", "marginTop=19"},
        {general, "Margin:", "Bottom(Left):", "21", "marginBottom=21"},
        {ticks, "Step:", "MajorStep:", "-2", "majorStep=-2", {}, false},
        {ticks, "Step:", "MinorStep:", "3", "minorStep=3", {}, false},
        {ticks, "Length:", "MajorLength:", "-8", "majorLength=-8"},
        {ticks, "Length:", "MinorLength:", "4", "minorLength=4", {}, false},
        {ticks, "Offset:", "MajorOffset:", "1", "majorOffset=1", {}, false},
        {ticks, "Offset:", "MinorOffset:", "-1", "minorOffset=-1", {}, false},
        {ticks, "Density:", "MajorSpacing:", "90", "majorSpacing=90", {}, false},
        {ticks, "Density:", "MinorSpacing:", "20", "minorSpacing=20", {}, false},
        {scale, "Auto Scale:", "Top Extension:", "0.5", "topExtension=0.5", {0.1, 0, 1}, false},
        {scale, "Auto Scale:", "Bottom Extension:", "0.25", "bottomExtension=0.25", {0.1, 0, 1}, false},
        {scale, "Auto Scale:", "Zero Affinity:", "0.125", "zeroAffinity=0.13", {0.1, 0, 1}, false},
        {scale, "Linear Scale:", "Lower Limit:", "-1.2345", "lowerLimit=-1.23", {}, false},
        {scale, "Linear Scale:", "Upper Limit:", "1.2345", "upperLimit=1.2345", {}, false},
        {scale, "Linear Scale:", "Major Tick Inc:", "20", "majorTickInc=20", {}, false},
        {scale, "Linear Scale:", "Minor Tick Inc:", "5", "minorTickInc=5", {}, false},
        {scale, "Date Scale:", "Lower Limit:", "2020/02/29", "dateLowerLimit=63718531200", {}, false},
        {scale, "Date Scale:", "Upper Limit:", "2031/12/01", "dateUpperLimit=64089446400", {}, false},
        {scale, "Date Scale:", "Major Tick Inc:", "2", "dateMajorTickInc=172800", {}, false},
        {scale, "Date Scale:", "Minor Tick Inc:", "30", "dateMinorTickInc=2592000", {}, false},
        {scale, "SyncAxis:", "X", "", "syncKind=x", {}, false},
        {scale, "SyncAxis:", "Y", "", "syncKind=y", {}, false},
        {scale, "SyncAxis:", "X2", "", "syncKind=x2", {}, false},
        {scale, "SyncAxis:", "Y2", "", "syncKind=y2", {}, false},
        {scale, "SyncAxis:", "Slope:", "2.5", "syncSlope=2.5", {0.1}, false},
        {title, "", "Show Title", "", "title.show=false"},
        {title, "", "Title:", "Profit", "title.text=Profit"},
        {title, "Position:", "Use Position", "", "title.usePosition=false"},
        {title, "Position:", "Alignment:", kAlignments, "title.alignment=bottomRight2"},
        {title, "Position:", "Gap:", "25", "title.gap=25", {10}},
        {title, "Angle:", "Use Angle", "", "title.useAngle=false", {}, false},
        {title, "Angle:", "Vertical", "", "title.vertical=true"},
        {title, "Angle:", "", "45", "title.angle=45", {10}},
        {label, "", "Label:", "{value} km", "labelFormat={value} km"},
        {label, "", "Format:", formats, "labelFormat={percent}%", {}, false},
        {label, "", "Angle:", "45", "labelAngle=45", {10}},
        {label, "", "Vertical", "", "labelVertical=true"},
        {label, "", "Filter 1:", filters, "filter1=7", {}, false},
        {label, "", "Format 1:", "{value|yyyy}", "format1={value|yyyy}", {}, false},
        {label, "", "Filter 2:", filters, "filter2=7", {}, false},
        {label, "", "Format 2:", "{value|mm}", "format2={value|mm}", {}, false},
    };
    rows = rows + LookRows(title, "title.") + LookRows(label, "label");
    for (Property& row : rows) {
        row.seen = row.seen && row.label != "FontColor:"; // texts of an axis are drawn in one colour
        row.change = "axes[0]." + row.change;
    }
    return rows;
}

/// What shows when the axis follows another additional one, and the kind of scale, which takes a label format with it.
const Properties kFollowingRows = {
    {"Axis>Additional|Modify...>Scale", "SyncAxis:", "Additional:", "Axis 1|Axis 2", "axes[0].syncAxis=1", {}, false},
    {"Axis>Additional|Modify...>Scale", "", "Scale Type:", "None|Auto Scale|Linear Scale|Date Scale", "axes[0]"},
};

/// One property of each of the other axes, and what those that can follow another one have besides.
const Properties kNamedAxisRows = {
    {"Axis>Primary|X Axis ...>General", "", "Width:", "4", "xAxis.width=4", {1, 0}},
    {"Axis>Primary|Y Axis ...>General", "", "Width:", "4", "yAxis.width=4", {1, 0}},
    {"Axis>Secondary X Axis (X2)|X2 Axis ...>General", "", "Width:", "4", "x2Axis.width=4", {1, 0}},
    {"Axis>Secondary X Axis (X2)|X2 Axis ...>Scale", "SyncAxis:", "Y", "", "x2Axis.syncKind=y"},
    {"Axis>Secondary Y Axis (Y2)|Y2 Axis ...>General", "", "Width:", "4", "y2Axis.width=4", {1, 0}},
    {"Axis>Secondary Y Axis (Y2)|Y2 Axis ...>Scale", "SyncAxis:", "X", "", "y2Axis.syncKind=x"},
    {"Axis>Secondary Y Axis (Y2)|Y2 Axis ...>Scale", "SyncAxis:", "Slope:", "2.5", "y2Axis.syncSlope=2.5", {0.1}},
};

const char* const kSymbols =
    "NoSymbol|SquareSymbol|DiamondSymbol|TriangleSymbol|RightTriangleSymbol|LeftTriangleSymbol|"
    "InvertedTriangleSymbol|CircleSymbol|CrossSymbol|Cross2Symbol";

Property Row(const char* group, const char* label, const char* give, const std::string& change, Number number = {},
             bool seen = true) {
    return {"Layer>Modify...", group, label, give, "layers[0]." + change, number, seen};
}

struct KindOfLayer {
    const char* caption; ///< of the group
    Properties rows;
    Properties back{}; ///< rows of what is on in a new layer
};

Properties BorderEffectRows() {
    Properties rows = EffectRows("Layer>Modify...", "layers[0].");
    for (Property& row : rows) row.group = "Border:";
    return rows;
}

std::vector<KindOfLayer> LayerKinds() {
    return {
        {"Bar Layer",
         Properties{Row("Bar Layer", "Shape:",
                        "NoShape|SquareShape|DiamondShape|TriangleShape|RightTriangleShape|LeftTriangleShape|"
                        "InvertedTriangleShape|CircleShape|CircleShapeNoShading",
                        "shape=flatCircle"),
                    Row("Bar Layer", "Combine Method:", "Overlay|Stack|Side|Percentage", "combineMethod=percentage"),
                    Row("Bar Layer", "Aggregate Label", "", "aggregateLabel=false", {}, false),
                    Row("Bar Layer", "Label For Each Seg", "", "labelForEachSeg=false", {}, false),
                    Row("Bar Layer", "Gap", "", "useOverlap=false"),
                    Row("Overlap:", "Ratio:", "0.75", "overlapRatio=0.75", {0.1}),
                    Row("Overlap:", "First On Top", "", "firstOnTop=false"),
                    Row("Gap:", "Bar Gap:", "0.35", "barGap=0.35", {0.1}, false),
                    Row("Gap:", "Sub Bar Gap:", "0.125", "subBarGap=0.13", {0.1}, false),
                    Row("Border:", "Use BorderColor", "", "useBorderColor=false"),
                    Row("Border:", "BorderColor", "Metal", "edgeColor.type=metal", {}, false),
                    Row("Color:", "DataSet", "Metal", "dataSetColors[0].type=metal")} +
             BorderEffectRows(),
         {Row("Bar Layer", "Overlap", "", "useOverlap=true")}},
        {"Line Layer",
         {Row("Line Layer", "Line Type:", "Normal|Spline|Step", "lineType=steps"),
          Row("Line Layer", "Line Width:", "5", "lineWidth=5", {1, 0}),
          Row("Line Layer", "Color:", "Metal", "color.type=metal"),
          Row("Symbol:", "Symbol Type:", kSymbols, "symbolType=slantedCross"),
          Row("Symbol:", "Size:", "15", "symbolSize=15", {1, 0}, false),
          Row("Symbol:", "Fill Color:", "Metal", "fillColor.type=metal", {}, false),
          Row("Symbol:", "Edge Color:", "Metal", "edgeColor.type=metal", {}, false)}},
        {"Scatter(Bubble) Layer",
         {Row("Scatter(Bubble) Layer", "Symbol Type:", kSymbols, "symbolType=slantedCross"),
          Row("Scatter Mode:", "Bubble", "", "bubble=true"),
          Row("Symbol:", "Use Symbol Color", "", "useSymbolColor=true"),
          Row("Symbol:", "SymbolColor:", "Metal", "symbolColor.type=metal", {}, false),
          Row("Symbol:", "Size:", "15", "symbolSize=15", {1, 0}, false)},
         {Row("Scatter Mode:", "Scatter", "", "bubble=false")}},
        {"Area Layer",
         {Row("Area Layer", "Combine Method:", "Stack|Percentage", "combineMethod=percentage"),
          Row("Area Layer", "Use Area Color", "", "useAreaColor=true"),
          Row("Area Layer", "AreaColor:", "Metal", "areaColor.type=metal", {}, false)}},
        {"BoxWhisker Layer",
         {Row("BoxWhisker Layer", "FillColor:", "Metal", "fillColor.type=metal"),
          Row("BoxWhisker Layer", "WhiskerColor:", "Metal", "whiskerColor.type=metal")}},
        {"Box Layer", {Row("Box Layer", "Color:", "Metal", "group.color.type=metal")}},
        {"HLOC Layer",
         {Row("HLOC Layer", "UpColor:", "Metal", "upColor.type=metal"),
          Row("HLOC Layer", "DownColor:", "Metal", "downColor.type=metal")}},
        {"Gantt Layer",
         {Row("Gantt Layer", "Name:", "new", "groups[0].name=new", {}, false),
          Row("Gantt Layer", "Color:", "Metal", "groups[0].color.type=metal")}},
        {"CandleStick Layer",
         {Row("CandleStick Layer", "RiseColor:", "Metal", "riseColor.type=metal"),
          Row("CandleStick Layer", "FallColor:", "Metal", "fallColor.type=metal")}},
    };
}

Properties RowsBeside(int type) {
    const char* kinds = "Bar|Line|Scatter(Bubble)|Area|BoxWhisker|Box|HLOC|Gantt|CandleStick";
    return {Row("", "Name:", "new", "name=new", {}, false),
            {"Layer>Modify...", "", "Layer Type", type == 8 ? "Bar" : kinds, "layers[0]"}};
}

/// A chart with a layer of that kind, in which each property shows.
CXYChart ChartOfKind(int type) {
    CXYChart chart = ChartOf(type);
    CXYChartLayer* layer = chart.m_layers.GetLayer(0);
    if (auto* bars = dynamic_cast<CXYBarLayer*>(layer)) {
        for (int i = 0; i < 2; ++i) // to stand beside each other
            bars->m_dataSetColors.push_back(CChartColor());
        bars->m_useBorderColor = true;
        bars->m_effect.m_effectType = 1; // soft lighting
        bars->m_effect.m_value = 5;
    }
    if (auto* line = dynamic_cast<CXYLineLayer*>(layer)) line->m_symbolType = 2;
    if (auto* gantt = dynamic_cast<CXYGanttLayer*>(layer)) gantt->m_groups.push_back(CBoxGroup());
    return chart;
}
} // namespace

TEST(XYEditor, EachControlReachesItsField) {
    TestProperties(ChartOf(1), CChartLayout(), kChartRows);
    CXYChart other = ChartOf(1);
    other.m_backgroundType = 2;
    AddAxis(other);
    other.m_layers.GetLayer(0)->m_yAxisKind = 16;
    other.m_layers.GetLayer(0)->m_yAxis = other.m_axes.GetAxis(0);
    TestProperties(other, CChartLayout(), OtherChartRows());
    TestTableIsWhole(other, CChartLayout(), kChartRows + OtherChartRows());
}

TEST(XYEditor, EachControlOfAnAxisReachesItsField) {
    CXYChart chart = ChartOf(1);
    CXYChartAxis* axis = chart.m_axes.GetAxis(0);
    chart.m_layers.GetLayer(0)->m_yAxisKind = 16;
    chart.m_layers.GetLayer(0)->m_yAxis = axis;
    TestProperties(chart, CChartLayout(), AxisRows());
    axis->m_syncKind = 16;
    AddAxis(chart);
    TestProperties(chart, CChartLayout(), kFollowingRows);
    TestTableIsWhole(chart, CChartLayout(), AxisRows() + kFollowingRows);
    chart.m_useX2Axis = chart.m_useY2Axis = true;
    TestProperties(chart, CChartLayout(), kNamedAxisRows);
}

TEST(XYEditor, EachEditInADialogOfItsOwnIsAStepAChangeAndARowToFind) {
    TestSteps(ChartOf(1), CChartLayout(), AxisRows());
    TestChanges(ChartOf(1), CChartLayout(), AxisRows());
    TestSearch(ChartOf(1), CChartLayout(), AxisRows());
}

TEST(XYEditor, EachControlOfALayerReachesItsField) {
    const auto kinds = LayerKinds();
    for (int type = 0; type < std::ssize(kinds); ++type) {
        const auto& [caption, rows, back] = kinds[static_cast<std::size_t>(type)];
        SCOPED_TRACE(caption);
        CXYChart chart = ChartOfKind(type);
        TestProperties(chart, CChartLayout(), rows + RowsBeside(type));
        TestTableIsWhole(chart, CChartLayout(), rows + back + RowsBeside(type));
        if (auto* bars = dynamic_cast<CXYBarLayer*>(chart.m_layers.GetLayer(0))) bars->m_useOverlap = false;
        if (auto* points = dynamic_cast<CXYScatterLayer*>(chart.m_layers.GetLayer(0))) points->m_bubble = true;
        TestProperties(chart, CChartLayout(), back);
    }
}

TEST(XYEditor, KeepsItsManners) {
    CXYChart chart = ChartOf(0);
    for (int type = 1; type < 9; ++type) AddLayer(chart, type, "of some name");
    chart.m_layers.GetLayer(3)->m_yAxisKind = 16;
    chart.m_layers.GetLayer(3)->m_yAxis = chart.m_axes.GetAxis(0);
    TestEditor("XYChart", {"General", "Background", "Axis", "Layer"}, chart, CChartLayout(), kChartRows);
}
