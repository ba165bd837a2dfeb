#include "editors/meter/meter_dlgs.h"

#include "resources/string_table.h"

namespace {

CMeterPointer Pointer(std::int32_t shape, double lengthRatio) {
    CMeterPointer pointer;
    pointer.m_shape = shape;
    pointer.m_lengthRatio = lengthRatio;
    pointer.m_widthRatio = 1.0;
    return pointer;
}

CChartTextBox TextAt(std::int32_t x, std::int32_t y) {
    CChartTextBox text;
    text.m_x = x;
    text.m_y = y;
    text.m_alignment = 5; // centred on its point
    return text;
}

} // namespace

CAngularMeterDlg::CAngularMeterDlg()
    : CDialog(QStringLiteral("AngularMeter")), m_preview(this), m_tabs(*this),
      m_general(m_preview.m_ownAngularMeter, *this),
      m_pointers(m_preview.m_ownAngularMeter.m_pointers, *this, "FillColor:", Pointer(0, 1.0)),
      m_rings(m_preview.m_ownAngularMeter.m_rings, *this),
      m_zones(m_preview.m_ownAngularMeter.m_zones, *this),
      m_texts(m_preview.m_ownAngularMeter.m_texts, *this,
              [this] {
                  const CAngularMeterPA& area = m_preview.m_ownLayout.m_angularPlotArea;
                  return TextAt(area.m_centerX, area.m_centerY);
              }),
      m_labels(m_preview.m_ownAngularMeter.m_useLabelStyle, m_preview.m_ownAngularMeter.m_labelStyle, *this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_pointers, ChartText::Pointer);
    m_tabs.AttachPage(m_rings, ChartText::Ring);
    m_tabs.AttachPage(m_zones, ChartText::Zone);
    m_tabs.AttachPage(m_texts, ChartText::Text);
    m_tabs.AttachPage(m_labels, ChartText::Label);
}

bool CAngularMeterDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownAngularMeter, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CAngularMeterDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}

CLinearMeterDlg::CLinearMeterDlg()
    : CDialog(QStringLiteral("LinearMeter")), m_preview(this), m_tabs(*this),
      m_general(m_preview.m_ownLinearMeter, *this),
      m_pointers(m_preview.m_ownLinearMeter.m_pointers, *this, "Fill Color:", Pointer(5, 0.75)),
      m_zones(m_preview.m_ownLinearMeter.m_zones, *this),
      m_texts(m_preview.m_ownLinearMeter.m_texts, *this,
              [this] {
                  const CLinearMeterPA& area = m_preview.m_ownLayout.m_linearPlotArea;
                  return TextAt(area.m_left, area.m_top);
              }),
      m_labels(m_preview.m_ownLinearMeter.m_useLabelStyle, m_preview.m_ownLinearMeter.m_labelStyle, *this) {
    m_tabs.AttachPage(m_general, ChartText::General);
    m_tabs.AttachPage(m_pointers, ChartText::Pointer);
    m_tabs.AttachPage(m_zones, ChartText::Zone);
    m_tabs.AttachPage(m_texts, ChartText::Text);
    m_tabs.AttachPage(m_labels, ChartText::Label);
}

bool CLinearMeterDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownLinearMeter, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CLinearMeterDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
