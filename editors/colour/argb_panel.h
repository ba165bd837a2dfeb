#pragma once
// What the colour pages have in common: a palette, the spectrum, and the four numbers of a colour.

#include "platform/widgets/dialog.h"

#include <QWidget>
#include <cstdint>
#include <vector>

class CColorPaletteCtrl;
class CNumericEdit;
class QComboBox;
class QGridLayout;
class XColorSpectrumCtrl;

/// The controls of a page that edits one colour, laid out on the page. Numbers are limited from above when
/// they are typed, and both ways when an arrow is pressed.
class CArgbPanel : public QWidget, public CDialogControls {
public:
    /// `owner` gets the page's messages, see ColorMessage. `withAngle` adds the row of the angle.
    /// `spectrumColor`, 0x00BBGGRR, is the spectrum's first one.
    CArgbPanel(CDialog& page, QWidget* owner, bool withAngle, std::uint32_t spectrumColor);

    /// Takes the numbers of a colour value, 0xAARRGGBB; the next data exchange shows them.
    void SetColor(std::uint32_t color);
    /// The colour value of the numbers. A fully transparent colour has one form, 0xFF000000.
    std::uint32_t ComposeColor() const;

    bool Exchange(bool read) override;
    bool CommitFocused() override;
    void FieldChanged(int /*key*/) override {}

    std::int32_t m_angle = 90; ///< degrees

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Number {
        QString name;
        CNumericEdit* edit;
        std::int32_t* value;
        std::int32_t ceiling;
    };

    void LayOut(bool withAngle);
    void AddNumber(QGridLayout& grid, const char* label, std::int32_t& value, std::int32_t ceiling);
    void Press(Number& number, int direction);
    /// Reads the numbers and notifies, or complains and puts the last good ones back.
    void Commit(bool pressed = false);
    void TakePaletteCell();
    /// Writes the controls and sends a ColorMessage.
    void Notify(int message);

    CDialog& m_page;
    QWidget* m_owner;
    QComboBox* m_paletteCombo;
    CColorPaletteCtrl* m_palette;
    XColorSpectrumCtrl* m_spectrum;
    std::vector<Number> m_numbers;
    const Number* m_bad = nullptr; ///< the number that could not be read
    std::int32_t m_red = 0;
    std::int32_t m_green = 0;
    std::int32_t m_blue = 0;
    std::int32_t m_alpha = 0;
};
