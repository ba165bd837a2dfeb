#pragma once
// The field of a colour choice: a swatch, "..." for the colour dialog, and the kind of colour.

#include "platform/widgets/dialog.h"

#include <charteditors/chart_color.h>

class CChartPreviewView;
class QLabel;

class CChartColorField : public CDialog {
public:
    using Value = CChartColor;

    CChartColorField();

    void SetKey(int key) { m_key = key; }
    /// Sets the value and writes the controls; sends nothing.
    void SetValueAndShow(const CChartColor& color);
    /// A colour in words.
    static QString TextOf(const CChartColor& color);
    const CChartColor& GetValue() const { return m_color; }

protected:
    bool DoDataExchange(bool read) override;

private:
    void Choose();

    CChartPreviewView* m_preview;
    QLabel* m_type;
    CChartColor m_color;
    QString m_typeText;
    int m_key = 0;
};
