#include "editors/polar/polar_layer_dlg.h"

#include "editors/fields/color_field.h"
#include "editors/fields/tips.h"
#include "editors/framework/editor_frame.h"
#include "resources/string_table.h"

namespace {

constexpr int kKinds[] = {ChartText::PolarLineKind, ChartText::PolarSplineKind, ChartText::PolarAreaKind,
                          ChartText::PolarSplineAreaKind};

} // namespace

const char* PolarKindText(int type) {
    return type >= 0 && type < std::ssize(kKinds) ? LoadChartString(kKinds[type]) : "";
}

CPolarLayerDlg::CPolarLayerDlg()
    : CDialog(QStringLiteral("Layer for PolarChart")), m_preview(this),
      m_form(*this, [this] { m_preview.RefreshPreview(); }), m_current([this] { return &CurrentLayer(); }),
      m_currentLine([this] { return CurrentLine(); }) {
    std::vector<CChoice> kinds;
    for (const int kind : kKinds)
        kinds.emplace_back(LoadChartString(kind));
    m_form.Combo("Type:", m_layerType, kinds).Then([this] { ShowType(); });
    m_form.Group("Preset:");
    m_form.Buttons(
        {{"Scatter", [this] { ApplyPreset(2, false); }}, {"Bubble", [this] { ApplyPreset(7, true); }}});
    m_form.EndGroup();
    LineRows();
    m_form.Column();
    SymbolRows();
}

void CPolarLayerDlg::LineRows() {
    const auto isLine = [this] { return CurrentLine() != nullptr; };
    m_form.Text("Name:", m_current[&CPolarLayer::m_name]);
    m_form.Field<CChartColorField>("Color:", m_current[&CPolarLayer::m_color]);
    m_form.Integer("LineWidth:", m_currentLine[&CPolarLineLayer::m_lineWidth])
        .Floor(0)
        .EnabledIf(isLine)
        .Tip("Pixels; 0 draws symbols alone");
    m_form.Check("Close Loop", m_currentLine[&CPolarLineLayer::m_closeLoop])
        .EnabledIf(isLine)
        .Tip("Joins the last point to the first");
}

void CPolarLayerDlg::SymbolRows() {
    m_form.Group("Symbol:");
    m_form.Combo("Symbol Type:", m_current[&CPolarLayer::m_symbolType],
                 {"NoShape", "SquareShape", "DiamondShape", "TriangleShape", "RightTriangleShape",
                  "LeftTriangleShape", "InvertedTriangleShape", "CircleShape", "CircleShapeNoShading"});
    m_form.Field<CChartColorField>("Fill Color:", m_current[&CPolarLayer::m_fillColor]);
    m_form.Field<CChartColorField>("Edge Color:", m_current[&CPolarLayer::m_edgeColor]);
    m_form.Check("Use SymbolScale", m_current[&CPolarLayer::m_useSymbolScale])
        .Tip("Symbols as large as a value of their own");
    m_form.Integer("Size:", m_current[&CPolarLayer::m_symbolSize]).Floor(0).Tip(tip::kPixels);
}

void CPolarLayerDlg::LoadLayer(CPolarLayer& layer) {
    const int type = layer.GetType();
    if (type < 0 || type >= std::ssize(m_layers))
        return;
    m_layerType = type;
    CPolarLayerMgr::CopyLayer(&layer, &CurrentLayer());
}

bool CPolarLayerDlg::OnInitDialog() {
    const auto layerOf = [this](int kind) -> CPolarLayer& {
        return *m_layers[static_cast<std::size_t>(kind)];
    };
    OpenEditor(*this, {.preview = &m_preview,
                       .body = m_form.Layout(),
                       .edited = std::make_shared<CWorkingLayer<CPolarLayerMgr, CPolarLayer>>(
                           layerOf, static_cast<int>(m_layers.size()), m_layerType,
                           [this](CPolarLayer& layer) { m_preview.SetPreviewLayer(&layer); }),
                       .restored = [this] { ShowType(); }});
    const bool started = CDialog::OnInitDialog();
    ShowType();
    return started;
}

CPolarLineLayer* CPolarLayerDlg::CurrentLine() {
    return dynamic_cast<CPolarLineLayer*>(&CurrentLayer());
}

void CPolarLayerDlg::ShowType() {
    m_form.LoadRows(&m_current);
    m_form.LoadRows(&m_currentLine);
    m_form.ShowStates();
    m_preview.SetPreviewLayer(&CurrentLayer());
}

void CPolarLayerDlg::ApplyPreset(int symbolType, bool useSymbolScale) {
    m_layerType = 0;
    m_line.m_lineWidth = 0;
    m_line.m_symbolType = symbolType;
    m_line.m_useSymbolScale = useSymbolScale;
    m_form.LoadRows(nullptr);
    ShowType();
    m_form.Notify();
}
