#pragma once
// The dialog that chooses a font: a face of the catalogue, and a size.

#include "platform/widgets/dialog.h"

#include <charteditors/chart_font.h>

class CChartPreviewView;
class QLayout;
class QLineEdit;
class QListWidget;

/// The caller sets m_font, runs the dialog, and reads m_font if the result is kOK.
class CFontDlg : public CDialog {
public:
    CFontDlg();

    CChartFont m_font; ///< What the controls last showed.

protected:
    bool DoDataExchange(bool read) override;
    bool OnInitDialog() override;
    void OnOK() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void NameParts();
    QLayout* LayOut();
    void FillLists();
    /// Reads and validates; on failure puts the last good values back.
    bool UpdateDataSafe(bool pressed = false);
    void TakeFace();
    void TakeSize();
    void CommitFace(bool pressed = false);
    void CommitSize(bool pressed = false);
    void SelectFaceByPrefix();

    CChartPreviewView* m_preview;
    QLineEdit* m_faceEdit;
    QListWidget* m_faces;
    QLineEdit* m_sizeEdit;
    QListWidget* m_sizes;
    QLayout* m_body = nullptr; ///< all but the buttons; the dialog's, once it is opened
    QString m_faceText;
    double m_size = 0; ///< points
};
