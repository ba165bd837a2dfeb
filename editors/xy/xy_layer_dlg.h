#pragma once
// The editor of one layer, whose kind can change while it is open. Each kind has a layer of its own: a kind
// can be left and returned to without loss.

#include "editors/framework/form.h"
#include "editors/framework/page_group.h"
#include "editors/preview/chart_preview_view.h"
#include "editors/xy/layer_pages.h"
#include "platform/widgets/dialog.h"

#include <QVBoxLayout>
#include <array>

class CXYLayerDlg : public CDialog {
public:
    CXYLayerDlg();

    /// The chart and the layout that the preview draws the layer with. No copies: they must outlive the
    /// dialog.
    void Attach(CXYChart& chart, const CChartLayout& layout) { m_preview.AttachChart(&chart, &layout); }
    /// Takes a copy of a layer to edit, before DoModal. Without one, it is a new bar layer.
    void LoadLayer(CXYChartLayer& layer);
    /// The layer of the kind that was chosen last; the dialog's own.
    CXYChartLayer& CurrentLayer() { return *m_layers[static_cast<std::size_t>(m_layerType)]; }

protected:
    bool OnInitDialog() override;
    void OnFieldChanged(int key) override;

private:
    void AttachPages();
    void ShowType();

    std::int32_t m_layerType = 0; ///< row of the kind
    CChartString m_name;          ///< stays when the kind changes
    CChartPreviewView m_preview;
    CForm m_form;
    CPageGroup m_group;
    QVBoxLayout* m_body = nullptr; ///< the form above the group; the dialog's, once it is laid out
    CBarLayerPage m_bar;
    CLineLayerPage m_line;
    CScatterLayerPage m_scatter;
    CAreaLayerPage m_area;
    CBoxWhiskerLayerPage m_boxWhisker;
    CBoxLayerPage m_box;
    CHLOCLayerPage m_hloc;
    CGanttLayerPage m_gantt;
    CCandleStickLayerPage m_candleStick;
    std::array<CXYChartLayer*, 9> m_layers; ///< of the pages, by kind
};
