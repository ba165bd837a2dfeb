#include "editors/xy/layer_pages.h"

#include "editors/colour/swatch.h"
#include "editors/fields/color_field.h"
#include "editors/fields/effect_field.h"
#include "editors/fields/tips.h"
#include "editors/framework/conventions.h"
#include "resources/string_table.h"

namespace {

constexpr char kCombine[] = "How several data sets stand at one place";

CComboRow& SymbolRow(CForm& form, std::int32_t& symbol) {
    return form
        .Combo("Symbol Type:", symbol,
               {"NoSymbol", "SquareSymbol", "DiamondSymbol", "TriangleSymbol", "RightTriangleSymbol",
                "LeftTriangleSymbol", "InvertedTriangleSymbol", "CircleSymbol", "CrossSymbol",
                "Cross2Symbol"})
        .Otherwise(0);
}

CBoxGroup NewGroup() {
    CBoxGroup group;
    group.m_color.m_color = 0x00CC00;
    return group;
}

} // namespace

CBarLayerPage::CBarLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form
        .Combo("Shape:", m_layer.m_shape,
               {"NoShape",
                "SquareShape",
                "DiamondShape",
                "TriangleShape",
                "RightTriangleShape",
                "LeftTriangleShape",
                "InvertedTriangleShape",
                "CircleShape",
                {"CircleShapeNoShading", 10}})
        .Otherwise(0);
    m_form
        .Combo("Combine Method:", m_layer.m_combineMethod,
               {{"Overlay", 0}, {"Stack", 1}, {"Side", 3}, {"Percentage", 4}})
        .Otherwise(2)
        .Tip(kCombine);
    m_form.Check("Aggregate Label", m_layer.m_aggregateLabel).Tip("A label for the whole bar");
    m_form.Check("Label For Each Seg", m_layer.m_labelForEachSeg).Tip("A label for each data set in the bar");
    m_form.Radio(m_layer.m_useOverlap, {{"Overlap", 1}, {"Gap", 0}})
        .Tip("Whether the ratio or the gaps place the bars");
    m_form.Group("Overlap:");
    m_form.Real("Ratio:", m_layer.m_overlapRatio)
        .Step(0.1)
        .Tip("Part of a bar that its neighbour covers, 0 to 1");
    m_form.Check("First On Top", m_layer.m_firstOnTop)
        .Tip("The first bar covers its neighbour, not the other way");
    m_form.Group("Gap:");
    m_form.Real("Bar Gap:", m_layer.m_barGap)
        .Step(0.1)
        .Tip("Part of the room left free between two places, 0 to 1");
    m_form.Real("Sub Bar Gap:", m_layer.m_subBarGap)
        .Step(0.1)
        .Tip("The same between the bars of one place; below 0 they overlap");
    m_form.Column();
    m_form.Group("Border:");
    m_form.Check("Use BorderColor", m_layer.m_useBorderColor)
        .Tip("Gives the bars this border and the effect below");
    m_form.Field<CChartColorField>(nullptr, m_layer.m_edgeColor).Named("BorderColor");
    m_form.Field<CRaisedEffectField>(nullptr, m_layer.m_effect);
    m_form.Group("Color:");
    auto& colors = m_form
                       .List(m_layer.m_dataSetColors, LoadChartString(ChartText::DataSetRow),
                             LoadChartString(ChartText::SelectItem))
                       .New(RandomChartColor);
    m_form.Field<CChartColorField>(nullptr, colors.Swatch(RowSwatch)).Named("DataSet");
}

CLineLayerPage::CLineLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Combo("Line Type:", m_layer.m_lineType, {"Normal", "Spline", "Step"});
    m_form.Integer("Line Width:", m_layer.m_lineWidth).Floor(0).Tip(tip::kLineWidth);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::LayerColor), m_layer.m_color);
    m_form.Group("Symbol:");
    SymbolRow(m_form, m_layer.m_symbolType);
    m_form.Integer("Size:", m_layer.m_symbolSize).Floor(0).Tip(tip::kPixels);
    m_form.Field<CChartColorField>("Fill Color:", m_layer.m_fillColor);
    m_form.Field<CChartColorField>("Edge Color:", m_layer.m_edgeColor);
}

CScatterLayerPage::CScatterLayerPage(QWidget& owner) : m_form(*this, owner) {
    SymbolRow(m_form, m_layer.m_symbolType);
    m_form.Group("Scatter Mode:");
    m_form.Radio(m_layer.m_bubble, {{"Scatter", 0}, {"Bubble", 1}})
        .Tip("Bubbles are as large as a value of their own");
    m_form.Group("Symbol:");
    m_form.Check("Use Symbol Color", m_layer.m_useSymbolColor)
        .Tip("Without, symbols have a color of the chart and 5 pixels");
    m_form.Field<CChartColorField>(LoadChartString(ChartText::SymbolColor), m_layer.m_symbolColor);
    m_form.Integer("Size:", m_layer.m_symbolSize).Floor(0).Tip(tip::kPixels);
}

CAreaLayerPage::CAreaLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Combo("Combine Method:", m_layer.m_combineMethod, {{"Stack", 1}, {"Percentage", 4}})
        .Otherwise(0)
        .Tip(kCombine);
    m_form.Check("Use Area Color", m_layer.m_useAreaColor).Tip("Without, areas have the colors of the chart");
    m_form.Field<CChartColorField>(LoadChartString(ChartText::AreaColor), m_layer.m_areaColor);
}

CBoxWhiskerLayerPage::CBoxWhiskerLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Field<CChartColorField>(LoadChartString(ChartText::FillColor), m_layer.m_fillColor);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::WhiskerColor), m_layer.m_whiskerColor);
}

CBoxLayerPage::CBoxLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Field<CChartColorField>(LoadChartString(ChartText::LayerColor), m_layer.m_group.m_color);
}

CHLOCLayerPage::CHLOCLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Field<CChartColorField>(LoadChartString(ChartText::UpColor), m_layer.m_upColor);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::DownColor), m_layer.m_downColor);
}

CGanttLayerPage::CGanttLayerPage(QWidget& owner) : m_form(*this, owner) {
    auto& groups = m_form
                       .List(m_layer.m_groups, LoadChartString(ChartText::GanttGroupRow),
                             LoadChartString(ChartText::SelectGanttGroup))
                       .New(NewGroup);
    m_form.Text("Name:", groups.Caption(&CBoxGroup::m_name));
    m_form.Field<CChartColorField>(LoadChartString(ChartText::LayerColor),
                                   groups.Swatch(&CBoxGroup::m_color, RowSwatch));
}

CCandleStickLayerPage::CCandleStickLayerPage(QWidget& owner) : m_form(*this, owner) {
    m_form.Field<CChartColorField>(LoadChartString(ChartText::RiseColor), m_layer.m_riseColor);
    m_form.Field<CChartColorField>(LoadChartString(ChartText::FallColor), m_layer.m_fallColor);
}
