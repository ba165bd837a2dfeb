#include "editors/xy/xy_layer_dlg.h"

#include "editors/framework/editor_frame.h"
#include "editors/xy/layer_kinds.h"
#include "resources/string_table.h"

CXYLayerDlg::CXYLayerDlg()
    : CDialog(QStringLiteral("Layer for XYChart")), m_preview(this),
      m_form(*this, [this] { m_preview.RefreshPreview(); }), m_group(*this), m_bar(*this), m_line(*this),
      m_scatter(*this), m_area(*this), m_boxWhisker(*this), m_box(*this), m_hloc(*this), m_gantt(*this),
      m_candleStick(*this), m_layers{&m_bar.m_layer,  &m_line.m_layer,       &m_scatter.m_layer,
                                     &m_area.m_layer, &m_boxWhisker.m_layer, &m_box.m_layer,
                                     &m_hloc.m_layer, &m_gantt.m_layer,      &m_candleStick.m_layer} {
    m_form.Text("Name:", m_name).Then([this] { CurrentLayer().m_name = m_name; });
    m_form.Part();
    std::vector<CChoice> kinds;
    for (int type = 0; type < kLayerKinds; ++type)
        kinds.emplace_back(LayerKindText(type));
    m_form.Combo(nullptr, m_layerType, kinds).Named("Layer Type").Then([this] {
        ShowType();
        CurrentLayer().m_name = m_name;
    });
    AttachPages();
}

void CXYLayerDlg::AttachPages() {
    const std::pair<CDialog*, int> pages[] = {{&m_bar, ChartText::BarPage},
                                              {&m_line, ChartText::LinePage},
                                              {&m_scatter, ChartText::ScatterPage},
                                              {&m_area, ChartText::AreaPage},
                                              {&m_boxWhisker, ChartText::BoxWhiskerPage},
                                              {&m_box, ChartText::BoxPage},
                                              {&m_hloc, ChartText::HlocPage},
                                              {&m_gantt, ChartText::GanttPage},
                                              {&m_candleStick, ChartText::CandleStickPage}};
    for (const auto& [page, caption] : pages)
        m_group.AttachPage(*page, QString::fromUtf8(LoadChartString(caption)));
}

void CXYLayerDlg::LoadLayer(CXYChartLayer& layer) {
    const int type = layer.GetType();
    if (type < 0 || type >= kLayerKinds)
        return;
    m_layerType = type;
    CXYChartLayerMgr::CopyLayer(&layer, &CurrentLayer());
}

bool CXYLayerDlg::OnInitDialog() {
    m_name = CurrentLayer().m_name;
    m_group.Start();
    if (m_body == nullptr) {
        m_body = new QVBoxLayout;
        m_body->addLayout(m_form.Layout());
        m_body->addWidget(&m_group, 1);
    }
    ShowType(); // first, for the caption takes room
    const auto layerOf = [this](int kind) -> CXYChartLayer& {
        return *m_layers[static_cast<std::size_t>(kind)];
    };
    OpenEditor(*this, {.preview = &m_preview,
                       .body = m_body,
                       .edited = std::make_shared<CWorkingLayer<CXYChartLayerMgr, CXYChartLayer>>(
                           layerOf, kLayerKinds, m_layerType,
                           [this](CXYChartLayer& layer) { m_preview.SetPreviewLayer(&layer); }, &m_name),
                       .restored = [this] {
                           CurrentLayer().m_name = m_name;
                           ShowType();
                       }});
    return CDialog::OnInitDialog();
}

void CXYLayerDlg::OnFieldChanged(int key) {
    if (key != 0)
        CDialog::OnFieldChanged(key);
    else
        m_preview.RefreshPreview();
}

void CXYLayerDlg::ShowType() {
    m_preview.SetPreviewLayer(&CurrentLayer());
    m_group.ShowPage(m_layerType);
}
