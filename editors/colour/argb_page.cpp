#include "editors/colour/argb_page.h"

#include "editors/colour/color_message.h"
#include "editors/colour/color_text.h"
#include "editors/colour/hsl.h"
#include "editors/colour/palettes.h"
#include "editors/colour/spectrum_ctrl.h"
#include "editors/colour/spectrum_event.h"
#include "editors/colour/swatch_grids.h"
#include "platform/widgets/field_changed.h"
#include "platform/widgets/numeric_edit.h"

#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int kSpectrumId = 9001;
constexpr int kByteMax = 255;
constexpr int kFullTurn = 360; // degrees
constexpr int kAngleStep = 45;
constexpr std::int32_t kNoFloor = std::numeric_limits<std::int32_t>::min(); // a typed number may be negative

void Name(QWidget& control, const char* name) {
    control.setObjectName(QString::fromUtf8(name));
    control.setAccessibleName(control.objectName());
}

} // namespace

CArgbPage::CArgbPage(QWidget* owner, std::uint32_t spectrumColor)
    : m_form(*this, [this] { Notify(ColorChanged); }), m_owner(owner), m_spectrum(new XColorSpectrumCtrl) {
    AddPalette();
    AddSpectrum(spectrumColor);
    m_form.Part();
    for (const auto& [label, number] :
         {std::pair("R:", &m_red), {"G:", &m_green}, {"B:", &m_blue}, {"A:", &m_alpha}}) {
        CIntegerRow& row = m_form.Integer(label, *number).Range(kNoFloor, kByteMax).FloorOfPresses(0);
        row.Control()->setToolTip(number == &m_alpha ? QStringLiteral("0 opaque to 255 transparent")
                                                     : QStringLiteral("0 to 255"));
        static_cast<CNumericEdit*>(row.Control())->SetDigits(4);
    }
    AddHex();
}

void CArgbPage::AddPalette() {
    std::vector<CChoice> names;
    for (const char* name : kPaletteNames)
        names.push_back({name, static_cast<int>(names.size())});
    m_form.Combo("Palette:",
                 CBinding<std::int32_t>([this] { return m_paletteRow; },
                                        [this](std::int32_t row) {
                                            m_paletteRow = row;
                                            m_palette->SetPalette(row);
                                            return TakePaletteCell();
                                        }),
                 names);
    m_palette = new CColorPaletteCtrl(this); // after the combo, in the order of Tab
    m_form.Place(nullptr, *m_palette);
    Name(*m_palette, "Palette colors");
}

void CArgbPage::AddSpectrum(std::uint32_t spectrumColor) {
    m_form.EndGroup();
    auto* label = new QLabel(QStringLiteral("ARGB:"), this);
    label->setBuddy(m_spectrum);
    m_spectrum->Create(this, kSpectrumId, spectrumColor, 0);
    m_form.Place(nullptr, *label);
    m_form.Place(nullptr, *m_spectrum);
    label->setAccessibleName(label->text());
    Name(*m_spectrum, "ARGB");
}

void CArgbPage::AddHex() {
    CTextRow& row = m_form.Text(
        "Hex:",
        CBinding<QString>([this] { return m_typedHex.isEmpty() ? HexText(ComposeColor()) : m_typedHex; },
                          [this](const QString& text) {
                              m_typedHex.clear();
                              if (const auto color = ColorOfHexText(text))
                                  TakeNumbers(*color);
                              return true; // anything else is replaced by the colour that stands
                          }));
    auto* edit = static_cast<QLineEdit*>(row.Control());
    edit->setFixedWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("#CCCCCCCC")) +
                        edit->sizeHint().height());
    edit->setToolTip(QStringLiteral("#RGB or #RRGGBB, with or without #; further digits are the opacity"));
    connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) { TakeHex(text); });
}

void CArgbPage::AddButtons() {
    m_form.EndGroup();
    m_form.Buttons({{"Add to Custom", [this] { SendFieldChanged(m_owner, ColorToCustom); }}});
}

void CArgbPage::Show() {
    m_form.LoadRows(nullptr);
    const std::uint32_t shown = Rgb(m_red, m_green, m_blue);
    if (m_spectrum->GetRGB() != shown)
        m_spectrum->SetRGB(shown);
}

void CArgbPage::SetColor(std::uint32_t color) {
    TakeNumbers(color);
    Show();
}

void CArgbPage::TakeNumbers(std::uint32_t color) {
    const auto byte = [color](int shift) { return static_cast<std::int32_t>(color >> shift & 0xFF); };
    m_red = byte(16);
    m_green = byte(8);
    m_blue = byte(0);
    m_alpha = byte(24);
}

std::uint32_t CArgbPage::ComposeColor() const {
    if (m_alpha == kByteMax)
        return 0xFF000000;
    const auto bits = [](std::int32_t number, int shift) {
        return static_cast<std::uint32_t>(number) << shift;
    };
    return bits(m_alpha, 24) | bits(m_red, 16) | bits(m_green, 8) | bits(m_blue, 0);
}

bool CArgbPage::TakePaletteCell() {
    if (m_palette->Selected() >= 0)
        TakeNumbers(m_palette->GetSelectedColor());
    return m_palette->Selected() >= 0;
}

/// A colour that was pasted or typed in full shows at once; shorter forms, which may be the beginning of a
/// longer one, when the edit is left.
void CArgbPage::TakeHex(const QString& text) {
    const auto color = ColorOfHexText(text);
    if (!color || text.size() < 6)
        return;
    TakeNumbers(*color);
    m_typedHex = text;
    Notify(ColorChanged);
}

void CArgbPage::Notify(int message) {
    Show();
    m_typedHex.clear();
    SendFieldChanged(m_owner, message);
}

void CArgbPage::OnFieldChanged(int /*message*/) {
    if (TakePaletteCell())
        Notify(ColorChanged);
}

bool CArgbPage::event(QEvent* event) {
    if (event->type() == RegisteredEventType(WM_XCOLORPICKER_SELCHANGE) ||
        event->type() == RegisteredEventType(WM_XCOLORPICKER_SELENDOK)) {
        const std::uint32_t color = static_cast<CSpectrumEvent*>(event)->Color();
        m_red = RedOf(color);
        m_green = GreenOf(color);
        m_blue = BlueOf(color);
        Notify(ColorChanged);
        return true;
    }
    return CDialog::event(event);
}

CColorMetalPage::CColorMetalPage(QWidget* owner) : CArgbPage(owner, 0xFF00) {
    m_form.Group("Direction:");
    CIntegerRow& row = m_form.Integer("Angle:", m_angle);
    row.Step(kAngleStep).Range(kNoFloor, kFullTurn).FloorOfPresses(0).SnapPresses();
    row.Control()->setToolTip(QStringLiteral("Degrees, up to 360"));
    AddButtons();
}

void CColorMetalPage::SetAngle(std::int32_t degrees) {
    m_angle = degrees;
    Show();
}
