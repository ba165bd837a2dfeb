#include "editors/colour/color_dlg.h"
#include "editors/colour/color_message.h"
#include "editors/colour/image_file_dlg.h"
#include "platform/narrow_text.h"
#include "platform/widgets/field_changed.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

CColorPatternPage::CColorPatternPage(QWidget* owner) : m_owner(owner), m_edit(new QLineEdit(this)) {
    m_edit->setReadOnly(true);
    m_edit->setObjectName(QStringLiteral("Image"));
    m_edit->setAccessibleName(QStringLiteral("Image"));
    auto* image = new QLabel(QStringLiteral("&Image:"), this);
    auto* choose = new QPushButton(QStringLiteral("..."), this);
    choose->setObjectName(QStringLiteral("ChooseImage"));
    choose->setAccessibleName(QStringLiteral("Choose an image file"));
    choose->setAutoDefault(false);
    choose->setFixedWidth(choose->sizeHint().height() * 3 / 2);
    image->setBuddy(choose);
    connect(choose, &QPushButton::clicked, this, [this] { Choose(); });
    auto* add = new QPushButton(QStringLiteral("A&dd to Custom"), this);
    add->setObjectName(QStringLiteral("AddToCustom"));
    add->setAccessibleName(QStringLiteral("Add to Custom"));
    add->setAutoDefault(false);
    connect(add, &QPushButton::clicked, this, [this] {
        UpdateData(false);
        SendFieldChanged(m_owner, ColorToCustom);
    });

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("Pattern:"), this), 0, 0, 1, 3);
    grid->addWidget(image, 1, 0);
    grid->addWidget(m_edit, 1, 1);
    grid->addWidget(choose, 1, 2);
    grid->addWidget(add, 2, 0, 1, 3);
    grid->setRowStretch(3, 1);
}

void CColorPatternPage::SetPath(const CChartString& path) {
    m_path = path;
    UpdateData(false);
}

bool CColorPatternPage::DoDataExchange(bool read) {
    if (!read) {
        const QString path = platform::NarrowToText(m_path.data());
        m_edit->setText(path);
        m_edit->setToolTip(path);
    }
    return true;
}

void CColorPatternPage::Choose() {
    CImageFileDlg dialog;
    if (dialog.DoModal() == kOK) {
        m_path = dialog.GetPathName();
        UpdateData(false);
        SendFieldChanged(m_owner, ColorChanged);
    }
}
