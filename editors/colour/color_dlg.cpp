#include "editors/colour/color_dlg.h"

#include "editors/colour/color_message.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/quiet_combo.h"

#include <QGridLayout>
#include <QLabel>
#include <QStackedWidget>

namespace {

enum ColorType { General, Pattern, Metal };

constexpr int kTypes = 3;

} // namespace

CColorDlg::CColorDlg()
    : CDialog(QStringLiteral("Select Color")), m_preview(new CChartPreviewView(this)),
      m_type(new CQuietCombo(this)), m_pages(new QStackedWidget(this)), m_custom(new CCustomColorCtrl(this)),
      m_general(this), m_pattern(this), m_metal(this) {
    m_color.m_color = 0xFFFFFF;
    m_color.m_direction = 90;
    connect(m_type, &QComboBox::activated, this, [this](int type) {
        m_typeIndex = type;
        ShowPage();
        ComposeColor();
    });
}

void CColorDlg::LayOut() {
    m_type->addItems({QStringLiteral("General"), QStringLiteral("Pattern"), QStringLiteral("Metal")});
    m_type->setObjectName(QStringLiteral("Type"));
    m_type->setAccessibleName(QStringLiteral("Type"));
    m_preview->setObjectName(QStringLiteral("Sample"));
    m_preview->setAccessibleName(QStringLiteral("Sample"));
    m_preview->setFocusPolicy(Qt::NoFocus);
    const int line = fontMetrics().height();
    m_preview->setFixedSize(line * 10, line * 3);

    auto* type = new QLabel(QStringLiteral("&Type:"), this);
    type->setBuddy(m_type);
    auto* custom = new QLabel(QStringLiteral("&Custom:"), this);
    custom->setBuddy(m_custom);

    auto* left = new QVBoxLayout;
    left->addWidget(type);
    left->addWidget(m_type);
    left->addWidget(new QLabel(QStringLiteral("Sample:"), this));
    left->addWidget(m_preview);
    left->addWidget(custom);
    left->addWidget(m_custom, 1);
    auto* grid = new QGridLayout(this);
    grid->addLayout(left, 0, 0);
    grid->addWidget(m_pages, 0, 1);
    grid->addWidget(MakeOkCancel(), 1, 0, 1, 2);
    grid->setColumnStretch(1, 1);
}

bool CColorDlg::OnInitDialog() {
    m_typeIndex = m_color.m_type;
    m_general.SetColor(m_color.m_color);
    m_pattern.SetPath(m_color.m_patternFile);
    m_metal.SetColor(m_color.m_color);
    m_metal.SetAngle(m_color.m_direction);
    for (CDialog* page : {static_cast<CDialog*>(&m_general), static_cast<CDialog*>(&m_pattern),
                          static_cast<CDialog*>(&m_metal)}) {
        page->Create(m_pages);
        m_pages->addWidget(page);
    }
    m_pages->addWidget(new QWidget); // for a type that has no page
    LayOut();
    m_type->setCurrentIndex(m_typeIndex < kTypes ? m_typeIndex : -1);
    ShowPage();
    ShowSample();
    return CDialog::OnInitDialog();
}

void CColorDlg::ShowPage() {
    m_pages->setCurrentIndex(m_typeIndex >= 0 && m_typeIndex < kTypes ? m_typeIndex : kTypes);
}

void CColorDlg::ShowSample() {
    m_preview->SetSampleColor(m_color);
    m_preview->RefreshPreview();
}

void CColorDlg::ComposeColor() {
    m_color.m_type = m_typeIndex;
    switch (m_typeIndex) {
    case General:
        m_color.m_color = m_general.ComposeColor();
        break;
    case Pattern:
        m_color.m_patternFile = m_pattern.Path();
        break;
    case Metal:
        m_color.m_color = m_metal.ComposeColor();
        m_color.m_direction = m_metal.Angle();
        break;
    default:
        break;
    }
    ShowSample();
}

void CColorDlg::OnFieldChanged(int message) {
    switch (message) {
    case CustomChosen:
        m_color = CCustomColorCtrl::Colors()[static_cast<std::size_t>(m_custom->Selected())];
        ShowSample();
        break;
    case ColorChanged:
        ComposeColor();
        break;
    case ColorToCustom:
        ComposeColor();
        m_custom->Keep(m_color);
        break;
    default:
        break;
    }
}
