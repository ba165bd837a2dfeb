#include "editors/fields/image_field.h"

#include "editors/colour/image_file_dlg.h"
#include "editors/fields/field_layout.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/narrow_text.h"

#include <QLabel>

CChartImageField::CChartImageField() : m_preview(new CChartPreviewView(this)) {
    m_pattern.m_type = 1;
    LaySwatchField(*this, *m_preview, *new QLabel(QStringLiteral("(Image)"), this), [this] { Choose(); });
}

void CChartImageField::SetValueAndShow(const CChartString& path) {
    m_pattern.m_patternFile = path;
    UpdateData(false);
}

QString CChartImageField::TextOf(const CChartString& path) {
    return path.empty() ? QStringLiteral("no image") : platform::NarrowToText(path.data());
}

bool CChartImageField::DoDataExchange(bool read) {
    if (!read) {
        m_preview->SetSampleColor(m_pattern);
        m_preview->RefreshPreview();
        TellValue(*this, TextOf(m_pattern.m_patternFile));
    }
    return true;
}

void CChartImageField::Choose() {
    CImageFileDlg dialog;
    dialog.SetInitialFile(m_pattern.m_patternFile);
    if (dialog.DoModal() == kOK) {
        SetValueAndShow(dialog.GetPathName());
        SendToPage(*this, m_key);
    }
}
