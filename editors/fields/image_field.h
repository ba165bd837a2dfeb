#pragma once
// The field of an image file: a swatch that shows the image as a pattern, and "..." for the file dialog.

#include "platform/widgets/dialog.h"

#include <charteditors/chart_color.h>

class CChartPreviewView;

class CChartImageField : public CDialog {
public:
    using Value = CChartString;

    CChartImageField();

    void SetKey(int key) { m_key = key; }
    void SetValueAndShow(const CChartString& path);
    /// The path, or that there is none.
    static QString TextOf(const CChartString& path);
    const CChartString& GetValue() const { return m_pattern.m_patternFile; }

protected:
    bool DoDataExchange(bool read) override;

private:
    void Choose();

    CChartPreviewView* m_preview;
    CChartColor m_pattern;
    int m_key = 0;
};
