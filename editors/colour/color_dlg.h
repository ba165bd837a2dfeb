#pragma once
// The dialog that chooses a colour: a plain colour with its transparency, a pattern image, or a metal
// gradient.

#include "editors/colour/argb_page.h"
#include "editors/colour/swatch_grids.h"

#include <charteditors/chart_color.h>

class CChartPreviewView;
class QComboBox;
class QLayout;
class QLineEdit;
class QStackedWidget;

/// The page of pattern images.
class CColorPatternPage : public CDialog {
public:
    explicit CColorPatternPage(QWidget* owner);
    void SetPath(const CChartString& path);
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
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NameParts();
    QLayout* LayOut();
    /// Shows a colour everywhere, its type and its page included.
    void Take(const CChartColor& color);
    void ShowPage();
    void ComposeColor();
    void ShowSample();

    CChartPreviewView* m_before;
    CChartPreviewView* m_preview;
    QComboBox* m_type;
    QStackedWidget* m_pages;
    int m_typeIndex = 0;
    CCustomColorCtrl* m_custom;
    CRecentColorCtrl* m_recent;
    CColorGeneralPage m_general;
    CColorPatternPage m_pattern;
    CColorMetalPage m_metal;
    QLayout* m_body = nullptr; ///< all but the buttons; the dialog's, once it is opened
    CChartColor m_old;         ///< what the dialog opened with
};
