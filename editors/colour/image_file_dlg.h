#pragma once
// The dialog that chooses an image file, with a picture of the file that is selected.

#include <charteditors/chart_string.h>

#include <QFileDialog>

class CChartPreviewView;

/// Paths are narrow text in the locale's encoding.
class CImageFileDlg : public QFileDialog {
public:
    CImageFileDlg();

    /// The file that is named when the dialog opens; empty for none.
    void SetInitialFile(const CChartString& path);
    /// Runs the dialog over the application's active window. The result is CDialog's kOK or kCancel.
    int DoModal();
    /// The full path that was chosen, after kOK.
    CChartString GetPathName() const;

private:
    void PlacePreview();
    void TidyUp();

    CChartPreviewView* m_preview;
};
