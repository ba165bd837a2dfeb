#include "example.h"

#include <array>

namespace {

// How often the wind of a year comes from a direction, in percent, at two stations that do not exist.
constexpr std::array kHarbour{4.0, 5.0, 8.0, 7.0, 6.0, 9.0, 17.0, 21.0, 13.0, 6.0, 3.0, 2.0};
constexpr std::array kHill{6.0, 9.0, 7.0, 5.0, 4.0, 6.0, 10.0, 14.0, 16.0, 12.0, 7.0, 5.0};

class PolarExample : public LookExample<CPolarChart> {
public:
    PolarExample()
        : LookExample(3, 520, 460, QStringLiteral("Where the wind comes from"),
                      QStringLiteral("Percent of the hours of a year, by direction")) {
        m_layout.m_polarPlotArea.m_centerX = 260;
        m_layout.m_polarPlotArea.m_centerY = 260;
        m_layout.m_polarPlotArea.m_radius = 150;
        m_layout.m_showLegend = true;
        m_layout.m_legendX = 20;
        m_layout.m_legendY = 60;
        m_layout.m_legendVertical = true;
        m_layout.m_showLabel = false;
        m_look.m_radialGridColor.m_color = 0xA0000000;
        m_look.m_angularGridColor.m_color = 0xC0000000;
        m_look.m_useLinearScale = true;
        m_look.m_lowerLimit = 0;
        m_look.m_upperLimit = 360;
        m_look.m_majorTickInc = 30;
        AddColumn({QStringLiteral("Harbour"), {kHarbour.begin(), kHarbour.end()}}, 0x802F5D8A, 3);
        AddColumn({QStringLiteral("Hill"), {kHill.begin(), kHill.end()}}, 0xD98A4E, 1);
        for (std::size_t i = 0; i < kHarbour.size(); ++i)
            m_data.angles.push_back(30.0 * static_cast<double>(i));
    }

    const char* Name() const override { return "Polar chart"; }
    const char* File() const override { return "polar"; }
    bool Edit() override { return ShowPolarChartWnd(m_look, m_layout); }

    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        std::vector<CPolarLayerData> layers;
        for (const NamedColumn& column : m_data.columns) {
            CPolarLayerData layer;
            layer.layer = static_cast<int>(layers.size());
            layer.angles = m_data.angles.data();
            layer.radii = column.values.data();
            layer.count = static_cast<int>(column.values.size());
            if (layer.layer < m_look.m_layers.GetLayerCount()) // the editor may have deleted some
                layers.push_back(layer);
        }
        CPolarChartData data;
        data.layers = layers.data();
        data.layerCount = static_cast<int>(layers.size());
        return RenderPolarChart(m_look, m_layout, data, format, picture);
    }

    bool Take(const ChartData& data, const QString& title) override {
        const auto* polar = std::get_if<PolarRows>(&data);
        if (polar == nullptr)
            return false;
        m_look.m_layers.DeleteContents();
        m_data = {polar->angles, {}};
        for (const NamedColumn& column : polar->columns)
            AddColumn(column, kPaletteColor, 0);
        SetTitle(title);
        return true;
    }

private:
    /// `type` as CPolarLayer::GetType has it.
    void AddColumn(const NamedColumn& column, std::uint32_t color, int type) {
        CPolarLayer* layer = CPolarLayerMgr::CreateLayer(type);
        layer->m_name = Narrow(column.name).c_str();
        layer->m_color.m_color = color;
        if (auto* line = dynamic_cast<CPolarLineLayer*>(layer))
            line->m_closeLoop = true;
        m_look.m_layers.AddLayer(layer);
        m_data.columns.push_back(column);
    }

    PolarRows m_data;
};

} // namespace

std::unique_ptr<Example> MakePolarExample() {
    return std::make_unique<PolarExample>();
}
