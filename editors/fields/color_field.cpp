#include "editors/fields/color_field.h"

#include "editors/colour/color_dlg.h"
#include "editors/colour/color_text.h"
#include "editors/fields/field_layout.h"
#include "editors/preview/chart_preview_view.h"
#include "resources/string_table.h"

#include <QLabel>
#include <algorithm>
#include <utility>

namespace {

/// Room for each of the kinds, so that a choice does not move the page.
int WidestKind(QLabel& label) {
    static std::pair<QString, int> known; // of the font that all labels have
    if (const QString font = label.font().key(); known.first != font) {
        known = {font, 0};
        for (const int kind : {ChartText::TypeArgb, ChartText::TypeMetal, ChartText::TypePattern}) {
            label.setText(QString::fromUtf8(LoadChartString(kind)));
            known.second = std::max(known.second, label.sizeHint().width());
        }
    }
    return known.second;
}

} // namespace

CChartColorField::CChartColorField()
    : m_preview(new CChartPreviewView(this)), m_type(new QLabel(this)),
      m_typeText(QString::fromUtf8(LoadChartString(ChartText::TypeArgb))) {
    m_type->setMinimumWidth(WidestKind(*m_type));
    LaySwatchField(*this, *m_preview, *m_type, [this] { Choose(); });
    m_preview->setMaximumWidth(m_preview->minimumHeight() * 5); // a wide page leaves more than a colour needs
}

void CChartColorField::SetValueAndShow(const CChartColor& color) {
    m_color = color;
    if (color.m_type >= 0 && color.m_type <= 2) {
        constexpr int kTexts[] = {ChartText::TypeArgb, ChartText::TypePattern, ChartText::TypeMetal};
        m_typeText = QString::fromUtf8(LoadChartString(kTexts[color.m_type]));
    }
    UpdateData(false);
}

QString CChartColorField::TextOf(const CChartColor& color) {
    return ColorText(color);
}

bool CChartColorField::DoDataExchange(bool read) {
    if (!read) {
        m_type->setText(m_typeText);
        m_preview->SetSampleColor(m_color);
        m_preview->RefreshPreview();
        TellValue(*this, ColorText(m_color));
    }
    return true;
}

void CChartColorField::Choose() {
    CColorDlg dialog;
    dialog.m_color = m_color;
    if (dialog.DoModal() == kOK) {
        SetValueAndShow(dialog.m_color);
        SendToPage(*this, m_key);
    }
}
