#include "editors/meter/meter_dlgs.h"

#include "editors/meter/meter_pages.h"
#include "editors/meter/ring_and_zone_pages.h"
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
    : CDialog(QStringLiteral("AngularMeter")), m_preview(this), m_tabs(*this) {
    CAngularMeter& meter = m_preview.m_ownAngularMeter;
    m_tabs.AttachPage<CMeterGeneralPage>(ChartText::General, meter, *this);
    m_tabs.AttachPage<CMeterPointerPage>(ChartText::Pointer, meter.m_pointers, *this,
                                         "FillColor:", Pointer(0, 1.0));
    m_tabs.AttachPage<CAngularRingPage>(ChartText::Ring, meter.m_rings, *this);
    m_tabs.AttachPage<CAngularZonePage>(ChartText::Zone, meter.m_zones, *this);
    m_tabs.AttachPage<CMeterTextPage>(ChartText::Text, meter.m_texts, *this, [this] {
        const CAngularMeterPA& area = m_preview.m_ownLayout.m_angularPlotArea;
        return TextAt(area.m_centerX, area.m_centerY);
    });
    m_tabs.AttachPage<CMeterLabelPage>(ChartText::Label, meter.m_useLabelStyle, meter.m_labelStyle, *this);
}

bool CAngularMeterDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownAngularMeter, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CAngularMeterDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}

CLinearMeterDlg::CLinearMeterDlg() : CDialog(QStringLiteral("LinearMeter")), m_preview(this), m_tabs(*this) {
    CLinearMeter& meter = m_preview.m_ownLinearMeter;
    m_tabs.AttachPage<CMeterGeneralPage>(ChartText::General, meter, *this);
    m_tabs.AttachPage<CMeterPointerPage>(ChartText::Pointer, meter.m_pointers, *this,
                                         "Fill Color:", Pointer(5, 0.75));
    m_tabs.AttachPage<CLinearZonePage>(ChartText::Zone, meter.m_zones, *this);
    m_tabs.AttachPage<CMeterTextPage>(ChartText::Text, meter.m_texts, *this, [this] {
        const CLinearMeterPA& area = m_preview.m_ownLayout.m_linearPlotArea;
        return TextAt(area.m_left, area.m_top);
    });
    m_tabs.AttachPage<CMeterLabelPage>(ChartText::Label, meter.m_useLabelStyle, meter.m_labelStyle, *this);
}

bool CLinearMeterDlg::OnInitDialog() {
    m_tabs.Open(
        {.preview = &m_preview, .edited = WorkingCopy(m_preview.m_ownLinearMeter, &m_preview.m_ownLayout)});
    return CDialog::OnInitDialog();
}

void CLinearMeterDlg::OnFieldChanged(int /*key*/) {
    m_preview.RefreshPreview();
}
