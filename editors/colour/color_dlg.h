#pragma once
// The dialog that chooses a colour: a plain colour with its transparency, a pattern image, or a metal
// gradient.

#include "editors/colour/argb_panel.h"
#include "editors/colour/swatch_grids.h"
#include "platform/widgets/dialog.h"

#include <charteditors/chart_color.h>

class CChartPreviewView;
class QComboBox;
class QLineEdit;
class QStackedWidget;

/// The page of plain colours.
class CColorGeneralPage : public CDialog {
public:
    explicit CColorGeneralPage(QWidget* owner) : m_panel(*this, owner, false, 0xFFFFFF) {}
    void SetColor(std::uint32_t color) { m_panel.SetColor(color); }
    std::uint32_t ComposeColor() const { return m_panel.ComposeColor(); }

private:
    CArgbPanel m_panel;
};

/// The page of metal gradients: a base colour and an angle.
class CColorMetalPage : public CDialog {
public:
    explicit CColorMetalPage(QWidget* owner) : m_panel(*this, owner, true, 0xFF00) {}
    void SetColor(std::uint32_t color) { m_panel.SetColor(color); }
    std::uint32_t ComposeColor() const { return m_panel.ComposeColor(); }
    void SetAngle(std::int32_t degrees) { m_panel.m_angle = degrees; }
    std::int32_t Angle() const { return m_panel.m_angle; }

private:
    CArgbPanel m_panel;
};

/// The page of pattern images.
class CColorPatternPage : public CDialog {
public:
    explicit CColorPatternPage(QWidget* owner);
    void SetPath(const CChartString& path) { m_path = path; }
    const CChartString& Path() const { return m_path; }

protected:
    bool DoDataExchange(bool read) override;

private:
    void Choose();

    QWidget* m_owner;
    QLineEdit* m_edit;
    CChartString m_path;
};

/// The caller sets m_color, runs the dialog, and reads m_color if the result is kOK.
class CColorDlg : public CDialog {
public:
    CColorDlg();

    void OnFieldChanged(int message) override;

    CChartColor m_color; ///< At first General, 0xFFFFFF, direction 90.

protected:
    bool OnInitDialog() override;

private:
    void LayOut();
    void ShowPage();
    void ComposeColor();
    void ShowSample();

    CChartPreviewView* m_preview;
    QComboBox* m_type;
    QStackedWidget* m_pages;
    int m_typeIndex = 0;
    CCustomColorCtrl* m_custom;
    CColorGeneralPage m_general;
    CColorPatternPage m_pattern;
    CColorMetalPage m_metal;
};
