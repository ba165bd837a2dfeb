#pragma once
// What the colour pages have in common: a palette, the spectrum, and the four numbers of a colour.

#include "editors/framework/form.h"

#include <cstdint>

class CColorPaletteCtrl;
class XColorSpectrumCtrl;

/// A page that edits one colour. Numbers are limited from above when they are typed, and both ways when an
/// arrow is pressed.
class CArgbPage : public CDialog {
public:
    /// Shows the numbers of a colour value, 0xAARRGGBB.
    void SetColor(std::uint32_t color);
    /// The colour value of the numbers. A fully transparent colour has one form, 0xFF000000.
    std::uint32_t ComposeColor() const;

protected:
    /// `owner` gets the page's messages, see ColorMessage. `spectrumColor`, 0x00BBGGRR, is the spectrum's
    /// first one.
    CArgbPage(QWidget* owner, std::uint32_t spectrumColor);
    /// The foot of the page, after the rows that only one of the pages has.
    void AddButtons();
    void Show();
    void OnFieldChanged(int message) override;
    bool event(QEvent* event) override;

    CForm m_form;

private:
    void AddPalette();
    void AddSpectrum(std::uint32_t spectrumColor);
    void AddHex();
    void TakeNumbers(std::uint32_t color);
    bool TakePaletteCell();
    void TakeHex(const QString& text);
    void Notify(int message);

    QWidget* m_owner;
    CColorPaletteCtrl* m_palette = nullptr;
    XColorSpectrumCtrl* m_spectrum;
    std::int32_t m_paletteRow = 0;
    std::int32_t m_red = 0;
    std::int32_t m_green = 0;
    std::int32_t m_blue = 0;
    std::int32_t m_alpha = 0;
    QString m_typedHex; ///< while a text is typed that already is a colour
};

/// The page of plain colours.
class CColorGeneralPage : public CArgbPage {
public:
    explicit CColorGeneralPage(QWidget* owner) : CArgbPage(owner, 0xFFFFFF) { AddButtons(); }
};

/// The page of metal gradients: a base colour and an angle.
class CColorMetalPage : public CArgbPage {
public:
    explicit CColorMetalPage(QWidget* owner);
    void SetAngle(std::int32_t degrees);
    std::int32_t Angle() const { return m_angle; }

private:
    std::int32_t m_angle = 90;
};
