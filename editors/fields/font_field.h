#pragma once
// The field of a font choice: the face's name, its size, and "Font..." for the font dialog.

#include "platform/widgets/dialog.h"

#include <charteditors/chart_font.h>

class QLabel;

class CChartFontField : public CDialog {
public:
    using Value = CChartFont;

    CChartFontField();

    void SetKey(int key) { m_key = key; }
    /// Hides the size and its caption: the font is used without it.
    void HideSize();
    void SetValueAndShow(const CChartFont& font);
    /// Name and size.
    static QString TextOf(const CChartFont& font);
    const CChartFont& GetValue() const { return m_font; }

protected:
    bool DoDataExchange(bool read) override;

private:
    void Choose();

    QLabel* m_name;
    QLabel* m_sizeCaption;
    QLabel* m_size;
    CChartFont m_font;
    int m_key = 0;
};
