#include "editors/fields/font_field.h"

#include "editors/fields/field_layout.h"
#include "editors/font/font_dlg.h"
#include "platform/narrow_text.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

CChartFontField::CChartFontField()
    : m_name(new QLabel(this)), m_sizeCaption(new QLabel(QStringLiteral("Size:"), this)),
      m_size(new QLabel(this)) {
    auto* button = new QPushButton(QStringLiteral("Font..."), this);
    // A long name is cut at the end of its place rather than making the page wider.
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_name->setMinimumWidth(fontMetrics().averageCharWidth() * 16);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Name:"), this), 0, 0);
    grid->addWidget(m_name, 0, 1, 1, 2);
    grid->addWidget(m_sizeCaption, 1, 0);
    grid->addWidget(m_size, 1, 1);
    grid->addWidget(button, 1, 2);
    grid->setColumnStretch(1, 1);
    OpenBy(*this, *button, [this] { Choose(); });
}

void CChartFontField::HideSize() {
    m_sizeCaption->hide();
    m_size->hide();
}

void CChartFontField::SetValueAndShow(const CChartFont& font) {
    m_font = font;
    UpdateData(false);
}

QString CChartFontField::TextOf(const CChartFont& font) {
    return platform::NarrowToText(font.m_faceName.data()) + QString::asprintf(", %g", font.m_size);
}

bool CChartFontField::DoDataExchange(bool read) {
    if (!read) {
        const QString name = platform::NarrowToText(m_font.m_faceName.data());
        m_name->setText(name);
        m_name->setToolTip(name);
        m_size->setText(QString::asprintf("%g", m_font.m_size));
    }
    return true;
}

void CChartFontField::Choose() {
    CFontDlg dialog;
    dialog.m_font = m_font;
    if (dialog.DoModal() == kOK) {
        SetValueAndShow(dialog.m_font);
        SendToPage(*this, m_key);
    }
}
