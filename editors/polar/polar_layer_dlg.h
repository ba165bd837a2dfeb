#pragma once
// The editor of one polar layer, whose kind can change while it is open. Each kind has a layer of its own: a
// kind can be left and returned to without loss.

#include "editors/framework/form.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/dialog.h"

#include <array>

/// The name of a kind of layer; "" for a code of none.
const char* PolarKindText(int type);

class CPolarLayerDlg : public CDialog {
public:
    CPolarLayerDlg();

    /// The chart and the layout that the preview draws the layer with. No copies: they must outlive the
    /// dialog.
    void Attach(CPolarChart& chart, const CChartLayout& layout) { m_preview.AttachChart(&chart, &layout); }
    /// Takes a copy of a layer to edit, before DoModal. Without one, it is a new line.
    void LoadLayer(CPolarLayer& layer);
    /// The layer of the kind that was chosen last; the dialog's own.
    CPolarLayer& CurrentLayer() { return *m_layers[static_cast<std::size_t>(m_layerType)]; }

protected:
    bool OnInitDialog() override;

private:
    void LineRows();
    void SymbolRows();
    /// The layer of the kind that was chosen last, null if that is no line.
    CPolarLineLayer* CurrentLine();
    void ShowType();
    /// Makes it a line of symbols alone.
    void ApplyPreset(int symbolType, bool useSymbolScale);

    CPolarLineLayer m_line;
    CPolarSplineLineLayer m_splineLine;
    CPolarAreaLayer m_area;
    CPolarSplineAreaLayer m_splineArea;
    std::array<CPolarLayer*, 4> m_layers{&m_line, &m_splineLine, &m_area, &m_splineArea}; ///< by kind
    std::int32_t m_layerType = 0;                                                         ///< row of the kind
    CChartPreviewView m_preview;
    CForm m_form;
    CCurrent<CPolarLayer> m_current;
    CCurrent<CPolarLineLayer> m_currentLine;
};
