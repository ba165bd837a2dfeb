#include "editors/colour/argb_panel.h"

#include "editors/colour/color_message.h"
#include "editors/colour/hsl.h"
#include "editors/colour/palettes.h"
#include "editors/colour/spectrum_ctrl.h"
#include "editors/colour/spectrum_event.h"
#include "editors/colour/swatch_grids.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/field_changed.h"
#include "platform/widgets/numeric_edit.h"
#include "platform/widgets/quiet_combo.h"

#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int kSpectrumId = 9001;
constexpr int kByteMax = 255;
constexpr int kFullTurn = 360; // degrees
constexpr int kAngleStep = 45;

} // namespace

CArgbPanel::CArgbPanel(CDialog& page, QWidget* owner, bool withAngle, std::uint32_t spectrumColor)
    : QWidget(&page), m_page(page), m_owner(owner), m_paletteCombo(new CQuietCombo(this)),
      m_palette(new CColorPaletteCtrl(this)), m_spectrum(new XColorSpectrumCtrl) {
    m_spectrum->Create(this, kSpectrumId, spectrumColor, 0);
    LayOut(withAngle);
    connect(m_paletteCombo, &QComboBox::activated, this, [this](int palette) {
        m_palette->SetPalette(palette);
        TakePaletteCell();
    });
    auto* fill = new QVBoxLayout(&page);
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(this);
    page.SetControls(this);
}

void CArgbPanel::LayOut(bool withAngle) {
    for (const char* name : kPaletteNames)
        m_paletteCombo->addItem(QString::fromUtf8(name));
    m_paletteCombo->setObjectName(QStringLiteral("Palette"));
    m_paletteCombo->setAccessibleName(QStringLiteral("Palette"));
    m_spectrum->setObjectName(QStringLiteral("ARGB"));

    auto* palette = new QLabel(QStringLiteral("&Palette:"), this);
    palette->setBuddy(m_paletteCombo);
    auto* argb = new QLabel(QStringLiteral("ARGB:"), this);
    argb->setBuddy(m_spectrum);

    auto* numbers = new QGridLayout;
    AddNumber(*numbers, "&R:", m_red, kByteMax);
    AddNumber(*numbers, "&G:", m_green, kByteMax);
    AddNumber(*numbers, "&B:", m_blue, kByteMax);
    AddNumber(*numbers, "&A:", m_alpha, kByteMax);
    numbers->setRowStretch(numbers->rowCount(), 1);

    auto* paletteRow = new QHBoxLayout;
    paletteRow->addWidget(palette);
    paletteRow->addWidget(m_paletteCombo, 1);
    auto* spectrumRow = new QHBoxLayout;
    spectrumRow->addWidget(m_spectrum, 1);
    spectrumRow->addLayout(numbers);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(paletteRow);
    column->addWidget(m_palette, 1);
    column->addWidget(argb);
    column->addLayout(spectrumRow, 1);
    if (withAngle) {
        column->addWidget(new QLabel(QStringLiteral("Direction:"), this));
        auto* angle = new QGridLayout;
        AddNumber(*angle, "A&ngle:", m_angle, kFullTurn);
        angle->setColumnStretch(2, 1);
        column->addLayout(angle);
    }
    auto* add = new QPushButton(QStringLiteral("A&dd to Custom"), this);
    add->setObjectName(QStringLiteral("AddToCustom"));
    add->setAutoDefault(false);
    WhenClicked(*add, [this, add] {
        add->setFocus(); // an edit that has it commits first, however the button was pressed
        Notify(ColorToCustom);
    });
    column->addWidget(add, 0, Qt::AlignRight);
}

void CArgbPanel::AddNumber(QGridLayout& grid, const char* label, std::int32_t& value, std::int32_t ceiling) {
    auto* text = new QLabel(QString::fromUtf8(label), this);
    auto* edit = new CNumericEdit(this);
    const QString name = text->text().remove(u'&').chopped(1); // without the colon
    text->setBuddy(edit);
    edit->setObjectName(name);
    edit->setAccessibleName(name);
    edit->SetDigits(4);
    edit->installEventFilter(this);
    const int row = grid.rowCount();
    grid.addWidget(text, row, 0);
    grid.addWidget(edit, row, 1);
    const std::size_t index = m_numbers.size();
    m_numbers.push_back({.name = name, .edit = edit, .value = &value, .ceiling = ceiling});
    connect(edit, &CNumericEdit::Pressed, this,
            [this, index](int direction) { Press(m_numbers[index], direction); });
}

void CArgbPanel::SetColor(std::uint32_t color) {
    const auto byte = [color](int shift) { return static_cast<std::int32_t>(color >> shift & 0xFF); };
    m_red = byte(16);
    m_green = byte(8);
    m_blue = byte(0);
    m_alpha = byte(24);
}

std::uint32_t CArgbPanel::ComposeColor() const {
    if (m_alpha == kByteMax)
        return 0xFF000000;
    const auto bits = [](std::int32_t number, int shift) {
        return static_cast<std::uint32_t>(number) << shift;
    };
    return bits(m_alpha, 24) | bits(m_red, 16) | bits(m_green, 8) | bits(m_blue, 0);
}

bool CArgbPanel::Exchange(bool read) {
    for (Number& number : m_numbers) {
        if (!read) {
            number.edit->SetText(QString::number(*number.value));
            continue;
        }
        if (!number.edit->Touched())
            continue; // a number that came from outside may be past the limit
        bool good = false;
        const int typed = number.edit->Text().trimmed().toInt(&good);
        if (!good) {
            m_bad = &number;
            return false;
        }
        *number.value = std::min(typed, number.ceiling);
    }
    const std::uint32_t shown = Rgb(m_red, m_green, m_blue);
    if (!read && m_spectrum->GetRGB() != shown)
        m_spectrum->SetRGB(shown);
    return true;
}

bool CArgbPanel::CommitFocused() {
    for (Number& number : m_numbers) {
        if (number.edit == window()->focusWidget()) {
            Commit();
            return true;
        }
    }
    return false;
}

void CArgbPanel::Commit(bool pressed) {
    if (m_page.UpdateData(true)) {
        Notify(ColorChanged);
        return;
    }
    CNumericEdit& bad = *m_bad->edit;
    m_page.UpdateData(false);
    bad.SelectAll();
    CComplaint::Raise(
        *window(), QStringLiteral("\"%1\" must be a whole number.").arg(m_bad->name),
        [&bad] { bad.SelectAll(); }, pressed);
}

void CArgbPanel::Press(Number& number, int direction) {
    const bool angle = number.value == &m_angle;
    const int step = direction * (angle ? kAngleStep : 1);
    // Before the step, so that no number is too large for it.
    const int from = std::clamp(*number.value, -kAngleStep, number.ceiling + kAngleStep);
    int value = std::clamp(from + step, 0, number.ceiling);
    if (angle)
        value = static_cast<int>(static_cast<float>(value) * 0.022222223F + 0.5F) * kAngleStep;
    *number.value = value;
    Notify(ColorChanged);
}

void CArgbPanel::TakePaletteCell() {
    if (m_palette->Selected() >= 0) {
        SetColor(m_palette->GetSelectedColor());
        Notify(ColorChanged);
    }
}

void CArgbPanel::Notify(int message) {
    m_page.UpdateData(false);
    SendFieldChanged(m_owner, message);
}

bool CArgbPanel::event(QEvent* event) {
    if (event->type() == CFieldChangedEvent::kType) {
        TakePaletteCell();
        return true;
    }
    if (event->type() == RegisteredEventType(WM_XCOLORPICKER_SELCHANGE) ||
        event->type() == RegisteredEventType(WM_XCOLORPICKER_SELENDOK)) {
        const std::uint32_t color = static_cast<CSpectrumEvent*>(event)->Color();
        m_red = RedOf(color);
        m_green = GreenOf(color);
        m_blue = BlueOf(color);
        Notify(ColorChanged);
        return true;
    }
    return QWidget::event(event);
}

bool CArgbPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::FocusOut)
        return false;
    watched->event(event); // first, since what follows can bring the focus back
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    for (Number& number : m_numbers) {
        // A text that cannot be read yet waits for the return from a menu or another window.
        if (number.edit == watched && number.edit->Touched() && reason != Qt::PopupFocusReason &&
            (reason != Qt::ActiveWindowFocusReason || m_page.UpdateData(true)))
            Commit(reason == Qt::MouseFocusReason);
    }
    return true;
}
