#include "editors/colour/color_dlg.h"

#include "editors/colour/color_message.h"
#include "editors/colour/color_text.h"
#include "editors/framework/editor_frame.h"
#include "editors/framework/mnemonics.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/quiet_combo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>

namespace {

enum ColorType { General, Pattern, Metal };

constexpr int kTypes = 3;

} // namespace

CColorDlg::CColorDlg()
    : CDialog(QStringLiteral("Select Color")), m_before(new CChartPreviewView(this)),
      m_preview(new CChartPreviewView(this)), m_type(new CQuietCombo(this)),
      m_pages(new QStackedWidget(this)), m_custom(new CCustomColorCtrl(this)),
      m_recent(new CRecentColorCtrl(this)), m_general(this), m_pattern(this), m_metal(this) {
    m_color.m_color = 0xFFFFFF;
    m_color.m_direction = 90;
    connect(m_type, &QComboBox::activated, this, [this](int type) {
        m_typeIndex = type;
        ShowPage();
        ComposeColor();
    });
    NameParts();
    connect(this, &QDialog::accepted, this, [this] { CRecentColorCtrl::Remember(m_color); });
}

void CColorDlg::NameParts() {
    for (CDialog* page : {static_cast<CDialog*>(&m_general), static_cast<CDialog*>(&m_pattern),
                          static_cast<CDialog*>(&m_metal)}) {
        page->Create(m_pages);
        m_pages->addWidget(page);
    }
    m_pages->addWidget(new QWidget); // for a type that has no page
    m_type->addItems({QStringLiteral("General"), QStringLiteral("Pattern"), QStringLiteral("Metal")});
    m_type->setObjectName(QStringLiteral("Type"));
    m_type->setAccessibleName(QStringLiteral("Type"));
    const int line = fontMetrics().height();
    for (const auto& [view, name] : {std::pair(m_before, "Before"), std::pair(m_preview, "Sample")}) {
        view->setObjectName(QString::fromUtf8(name));
        view->setFocusPolicy(Qt::NoFocus);
        view->setFixedSize(line * 5, line * 3);
    }
    m_before->viewport()->installEventFilter(this);
    m_before->viewport()->setCursor(Qt::PointingHandCursor);
}

QLayout* CColorDlg::LayOut() {
    auto* type = new QLabel(QStringLiteral("&Type:"), this);
    type->setBuddy(m_type);
    auto* custom = new QLabel(QStringLiteral("&Custom:"), this);
    custom->setBuddy(m_custom);
    auto* recent = new QLabel(QStringLiteral("R&ecent:"), this);
    recent->setBuddy(m_recent);
    auto* samples = new QHBoxLayout;
    samples->setSpacing(0); // beside each other, to compare them
    samples->addWidget(m_before);
    samples->addWidget(m_preview);

    auto* left = new QVBoxLayout;
    left->addWidget(type);
    left->addWidget(m_type);
    left->addWidget(new QLabel(QStringLiteral("Sample:"), this));
    left->addLayout(samples);
    left->addWidget(custom);
    left->addWidget(m_custom, 1);
    left->addWidget(recent);
    left->addWidget(m_recent);
    auto* columns = new QHBoxLayout;
    columns->addLayout(left);
    columns->addWidget(m_pages, 1);
    return columns;
}

bool CColorDlg::OnInitDialog() {
    m_old = m_color;
    m_before->SetSampleColor(m_old);
    m_before->viewport()->setToolTip(QStringLiteral("Before: ") + ColorText(m_old));
    m_before->setAccessibleName(m_before->viewport()->toolTip());
    Take(m_color);
    if (m_body == nullptr)
        m_body = LayOut();
    OpenEditor(*this, {.body = m_body});
    AssignMnemonics(*this);
    return CDialog::OnInitDialog();
}

void CColorDlg::Take(const CChartColor& color) {
    m_color = color;
    m_typeIndex = color.m_type;
    m_general.SetColor(color.m_color);
    m_pattern.SetPath(color.m_patternFile);
    m_metal.SetColor(color.m_color);
    m_metal.SetAngle(color.m_direction);
    m_type->setCurrentIndex(m_typeIndex >= 0 && m_typeIndex < kTypes ? m_typeIndex : -1);
    ShowPage();
    ShowSample();
}

/// A click on the colour from before takes it back.
bool CColorDlg::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_before->viewport() && event->type() == QEvent::MouseButtonRelease)
        Take(m_old);
    return CDialog::eventFilter(watched, event);
}

void CColorDlg::ShowPage() {
    m_pages->setCurrentIndex(m_typeIndex >= 0 && m_typeIndex < kTypes ? m_typeIndex : kTypes);
}

void CColorDlg::ShowSample() {
    m_preview->SetSampleColor(m_color);
    m_preview->RefreshPreview();
    m_preview->viewport()->setToolTip(ColorText(m_color));
    m_preview->setAccessibleName(QStringLiteral("Sample, ") + ColorText(m_color));
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
    case RecentChosen: {
        const CChartColor chosen = CRecentColorCtrl::Colors()[static_cast<std::size_t>(m_recent->Selected())];
        Take(chosen);
        break;
    }
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
