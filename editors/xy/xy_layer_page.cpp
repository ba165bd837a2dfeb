#include "editors/framework/layer_list.h"
#include "editors/xy/layer_kinds.h"
#include "editors/xy/xy_layer_dlg.h"
#include "editors/xy/xy_pages.h"
#include "resources/string_table.h"

namespace {

// Values of CXYChartLayer::m_yAxisKind.
constexpr unsigned char kY = 2;
constexpr unsigned char kY2 = 8;
constexpr unsigned char kAdditional = 16;

} // namespace

CXYLayerPage::CXYLayerPage(CXYChart& chart, const CChartLayout& layout, QWidget& owner)
    : m_chart(chart), m_layout(layout), m_form(*this, owner) {
    m_form.Group("3D:");
    m_form.Check("Show 3D", chart.m_show3D).Tip("Gives the layers a depth");
    m_form.Part();
    m_form.Integer("Depth:", chart.m_depth).Floor(0).Tip("Pixels; 0 flat");
    m_form.Part();
    m_form.Integer("Z Gap:", chart.m_zGap).Floor(0).Tip("Pixels from one layer to the next");
    m_form.Group("Layer:");
    m_layers = &m_form.Objects(Layers(), LoadChartString(ChartText::SelectLayer));
    m_form.Group("Layer Y Axis:");
    AxisRows();
}

void CXYLayerPage::ShowAxes() {
    m_form.LoadRows(m_layers);
}

CObjects CXYLayerPage::Layers() {
    CXYChartLayerMgr& layers = m_chart.m_layers;
    CObjects objects = LayerObjects<CXYChartLayerMgr, CXYChartLayer>(
        layers, [this](CXYChartLayer* layer) { return Edit(layer); },
        [](const CXYChartLayer& layer) { return LayerKindText(layer.GetType()); });
    objects.copy = [&layers](int row) {
        if (CXYChartLayer* clone = CXYChartLayerMgr::CloneLayer(layers.GetLayer(row)))
            layers.AddLayer(clone);
    };
    objects.exchange = [&layers](int row, int other) {
        CXYChartLayer* moved = layers.GetLayer(row);
        layers.SetLayer(layers.GetLayer(other), row);
        layers.SetLayer(moved, other);
    };
    return objects;
}

CXYChartLayer* CXYLayerPage::Edit(CXYChartLayer* layer) {
    CXYLayerDlg dialog;
    dialog.Attach(m_chart, m_layout);
    if (layer != nullptr)
        dialog.LoadLayer(*layer);
    return dialog.DoModal() == kOK ? CXYChartLayerMgr::CloneLayer(&dialog.CurrentLayer()) : nullptr;
}

void CXYLayerPage::AxisRows() {
    const auto layer = [this](int row) { return m_chart.m_layers.GetLayer(row); };
    const auto kindOf = [layer](int row) -> std::int32_t { return row < 0 ? kY : layer(row)->m_yAxisKind; };
    const auto stand = [this, layer](int row, unsigned char kind, CXYChartAxis* axis) {
        layer(row)->m_yAxisKind = kind;
        layer(row)->m_yAxis = axis;
    };
    const auto showAgain = [this] { ShowAxes(); };
    auto kinds = m_layers->Bind<std::int32_t>(
        kindOf, [stand](int row, int kind) { stand(row, static_cast<unsigned char>(kind), nullptr); });
    kinds.At([layer](int row) { return row < 0 ? CMember() : CMember::Of(layer(row)->m_yAxisKind); },
             [](const void* member) { return *static_cast<const unsigned char*>(member); });
    m_form.Radio(kinds, {{"Y", kY}, {"Y2", kY2}})
        .Tip("The axis that the selected layer stands on")
        .Then(showAgain);
    m_form.Part();
    m_form
        .Combo(nullptr,
               m_layers->Bind<std::int32_t>(
                   [this, kindOf, layer](int row) -> std::int32_t {
                       const bool fixed = kindOf(row) == kY || kindOf(row) == kY2;
                       return fixed ? -1 : m_chart.m_axes.GetAxisIndex(layer(row)->m_yAxis);
                   },
                   [this, stand](int row, int axis) {
                       stand(row, kAdditional, m_chart.m_axes.GetSafeAxis(axis));
                   }),
               {})
        .RowsFrom([this] {
            QStringList rows;
            for (int i = 0; i < m_chart.m_axes.GetAxisCount(); ++i)
                rows.append(RowCaption(LoadChartString(ChartText::AxisRow), i));
            return rows;
        })
        .Named("Axis")
        .Tip("An additional axis for the selected layer instead of Y and Y2")
        .Then(showAgain);
}
