#include "editors/polar/polar_pages.h"

#include "editors/fields/color_field.h"
#include "editors/fields/look_rows.h"
#include "editors/fields/scale_rows.h"
#include "editors/fields/tips.h"
#include "editors/framework/layer_list.h"
#include "editors/polar/polar_layer_dlg.h"
#include "resources/string_table.h"

CPolarGeneralPage::CPolarGeneralPage(CPolarChart& chart, const CChartLayout& layout, QWidget& owner)
    : m_chart(chart), m_layout(layout), m_form(*this, owner) {
    ScaleRows();
    BackgroundRows();
    m_form.Column();
    GridRows();
    LayerRows();
}

void CPolarGeneralPage::ScaleRows() {
    m_form.Group("Style:");
    m_form.Check("PolygonGrid", m_chart.m_polygonGrid)
        .Tip("Straight lines from spoke to spoke instead of circles");
    m_form.Part();
    m_form.Check("Grid On Top", m_chart.m_gridOnTop).Tip("The grid lies over the layers");
    m_form.Group("AngularAxis:");
    m_form.Check("Use LinearScale", m_chart.m_useLinearScale)
        .Tip("Numbers round the circle, clockwise from the top");
    m_form.Real("LowerLimit:", m_chart.m_lowerLimit).Step(10).Tip(tip::kScaleStart);
    m_form.Real("UpperLimit:", m_chart.m_upperLimit).Step(10).Tip(tip::kScaleEnd);
    m_form.Part();
    m_form.Real("MajorTickInc:", m_chart.m_majorTickInc).Step(10).Tip(tip::kMajorTicks);
    m_form.Real("MinorTickInc:", m_chart.m_minorTickInc).Step(5).Tip(tip::kMinorTicks);
    m_form.EndGroup();
    m_form.Field<CChartColorField>("BackColor:", m_chart.m_backColor);
}

void CPolarGeneralPage::BackgroundRows() {
    m_form.Group("AltBgColor:");
    m_form.Check("Use AltBgColor", m_chart.m_useAltBgColor).Tip("Color1 and Color2 by turns");
    m_form.Field<CChartColorField>("Color1:", m_chart.m_bgColor1);
    m_form.Field<CChartColorField>("Color2:", m_chart.m_bgColor2);
    m_form.Part();
    m_form.Radio(m_chart.m_altBgRing, {{"Ring", 1}, {"Sector", 0}})
        .Tip("Whether rings or sectors have the two colors by turns");
    m_form.Group("Edge:");
    m_form.Integer("Width:", m_chart.m_edgeWidth).Floor(0).Tip(tip::kLineWidth);
    m_form.Part();
    m_form.Field<CChartColorField>("Color:", m_chart.m_edgeColor);
}

void CPolarGeneralPage::GridRows() {
    m_form.Group("RadialGrid:");
    m_form.Integer("Width:", m_chart.m_radialGridWidth).Floor(0).Tip(tip::kLineWidth);
    m_form.Field<CChartColorField>("Color:", m_chart.m_radialGridColor);
    m_form.Group("AngularGrid:");
    m_form.Integer("Width:", m_chart.m_angularGridWidth).Floor(0).Tip(tip::kLineWidth);
    m_form.Field<CChartColorField>("Color:", m_chart.m_angularGridColor);
}

void CPolarGeneralPage::LayerRows() {
    m_form.Group("Layer:");
    m_form
        .Objects(LayerObjects<CPolarLayerMgr, CPolarLayer>(
                     m_chart.m_layers, [this](CPolarLayer* layer) { return Edit(layer); },
                     [](const CPolarLayer& layer) { return PolarKindText(layer.GetType()); }),
                 LoadChartString(ChartText::SelectLayer))
        .NoneAtStart();
}

CPolarLayer* CPolarGeneralPage::Edit(CPolarLayer* layer) {
    CPolarLayerDlg dialog;
    dialog.Attach(m_chart, m_layout);
    if (layer != nullptr)
        dialog.LoadLayer(*layer);
    return dialog.DoModal() == kOK ? CPolarLayerMgr::CloneLayer(&dialog.CurrentLayer()) : nullptr;
}

CPolarAngularLabelPage::CPolarAngularLabelPage(CPolarChart& chart, QWidget& owner) : m_form(*this, owner) {
    m_form.Check("Show Labels", chart.m_showAngularLabels).Unvalidated();
    auto& labels = m_form.List(chart.m_angularLabels, LoadChartString(ChartText::AngularLabelRow),
                               LoadChartString(ChartText::SelectItem));
    m_form.Lines("Text:", labels.Caption());
    CPolarLabelStyleAngular& style = chart.m_angularLabelStyle;
    m_form.Check("Use LabelStyle", chart.m_useAngularLabelStyle).Unvalidated().Tip(tip::kUseLook);
    m_form.Alignment("Alignment:", style.m_alignment);
    m_form.Column();
    AngleRows(m_form, style);
    LookRows(m_form, LookOf(style));
}

CPolarRadialLabelPage::CPolarRadialLabelPage(CPolarChart& chart, QWidget& owner) : m_form(*this, owner) {
    LabelStyleRows(m_form, chart.m_useRadialLabelStyle, chart.m_radialLabelStyle);
}

CPolarAngularZonePage::CPolarAngularZonePage(CPolarChart& chart, QWidget& owner) : m_form(*this, owner) {
    AngularZoneRows(m_form, chart.m_angularZones, ChartText::PolarZoneRow);
}

CPolarRadialZonePage::CPolarRadialZonePage(CPolarChart& chart, QWidget& owner) : m_form(*this, owner) {
    AngularZoneRows(m_form, chart.m_radialZones, ChartText::PolarZoneRow);
}
