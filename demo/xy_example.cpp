#include "example.h"

#ifdef DEMO_HAS_XY

#include <algorithm>
#include <array>

namespace {

constexpr std::array kMonths{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
// Loaves a day in two shops that do not exist, and the mean temperature.
constexpr std::array kOldTown{210.0, 205.0, 198.0, 190.0, 176.0, 160.0,
                              148.0, 152.0, 181.0, 201.0, 214.0, 236.0};
constexpr std::array kStation{120.0, 126.0, 133.0, 141.0, 150.0, 149.0,
                              131.0, 128.0, 155.0, 163.0, 170.0, 192.0};
constexpr std::array kWarmth{1.0, 2.0, 6.0, 10.0, 14.0, 17.0, 19.0, 19.0, 15.0, 10.0, 5.0, 2.0};

/// Bars of the first data sets; a second layer of lines, on its own axis, where the host has something for
/// it.
class XYExample : public LookExample<CXYChart> {
public:
    XYExample()
        : LookExample(
              1, 620, 420, QStringLiteral("Bread and weather"),
              QStringLiteral("Loaves a day in two shops (bars), mean temperature in degrees (line)")) {
        m_layout.m_xyPlotArea.m_left = 60;
        m_layout.m_xyPlotArea.m_top = 90;
        m_layout.m_xyPlotArea.m_width = 500;
        m_layout.m_xyPlotArea.m_height = 280;
        m_layout.m_showLegend = true;
        m_layout.m_legendX = 60;
        m_layout.m_legendY = 58;
        m_layout.m_showLabel = false;
        for (const char* month : kMonths)
            m_data.labels.push_back(QString::fromUtf8(month));
        m_data.columns = {{QStringLiteral("Old town"), {kOldTown.begin(), kOldTown.end()}},
                          {QStringLiteral("Station"), {kStation.begin(), kStation.end()}}};
        m_line = {QStringLiteral("Temperature"), {kWarmth.begin(), kWarmth.end()}};
        AddBars({0x2F5D8A, 0x9CC3DD});
        auto* line = new CXYLineLayer;
        line->m_color.m_color = 0xD98A4E;
        line->m_lineWidth = 2;
        line->m_lineType = 1;
        line->m_symbolType = 7;
        line->m_symbolSize = 7;
        line->m_fillColor.m_color = 0xFFFFFF;
        line->m_edgeColor.m_color = 0xD98A4E;
        line->m_yAxisKind = 8; // the axis at the right
        m_look.m_layers.AddLayer(line);
        m_look.m_useY2Axis = true;
        m_look.m_y2Axis.m_scaleType = 1; // a scale of its own
        m_look.m_y2Axis.m_syncKind = 0;
        m_look.m_majorHGridColor.m_color = 0xE2E2E2;
        m_look.m_lineColor.m_color = kTransparent;
    }

    const char* Name() const override { return "XY chart"; }
    const char* File() const override { return "xy"; }
    bool Edit() override { return ShowXYChartWnd(m_look, m_layout); }

    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        const auto rows = static_cast<int>(m_data.labels.size());
        const NarrowTexts labels(m_data.labels);
        std::vector<QString> names;
        for (const NamedColumn& column : m_data.columns)
            names.push_back(column.name);
        names.push_back(m_line.name);
        const NarrowTexts texts(names);
        std::vector<CXYSeriesData> sets;
        for (const NamedColumn& column : m_data.columns) {
            CXYSeriesData set;
            set.name = texts.pointers[sets.size()];
            set.values = column.values.data();
            set.count = rows;
            sets.push_back(set);
        }
        CXYSeriesData line;
        line.name = texts.pointers.back();
        line.values = m_line.values.data();
        line.count = rows;
        // What the editor's person has made of the layers: the first one shows the columns, the second the
        // line.
        std::vector<CXYLayerData> layers(static_cast<std::size_t>(
            std::min(m_look.m_layers.GetLayerCount(), m_line.values.empty() ? 1 : 2)));
        for (std::size_t i = 0; i < layers.size(); ++i) {
            layers[i].layer = static_cast<int>(i);
            layers[i].series = i == 0 ? sets.data() : &line;
            layers[i].seriesCount = i == 0 ? static_cast<int>(sets.size()) : 1;
        }
        CXYChartData data;
        data.rowCount = rows;
        data.labels = m_data.times.empty() ? labels.pointers.data() : nullptr;
        data.dates = m_data.times.empty() ? nullptr : m_data.times.data();
        data.layers = layers.data();
        data.layerCount = static_cast<int>(layers.size());
        return RenderXYChart(m_look, m_layout, data, format, picture);
    }

    /// Dates become lines, one layer for all; labels become bars side by side.
    bool Take(const ChartData& data, const QString& title) override {
        const auto* rows = std::get_if<Rows>(&data);
        if (rows == nullptr)
            return false;
        m_data = *rows;
        m_line = {};
        m_look.m_layers.DeleteContents();
        m_look.m_useY2Axis = false;
        if (m_data.times.empty()) {
            AddBars({});
        } else {
            auto* line = new CXYLineLayer;
            line->m_color.m_color = kPaletteColor;
            line->m_lineWidth = 2;
            m_look.m_layers.AddLayer(line);
        }
        SetTitle(title);
        return true;
    }

private:
    void AddBars(const std::vector<std::uint32_t>& colors) {
        auto* bars = new CXYBarLayer;
        bars->m_aggregateLabel = bars->m_labelForEachSeg = false;
        bars->m_useOverlap = false;
        bars->m_barGap = 0.35;
        bars->m_useBorderColor = true;
        bars->m_edgeColor.m_color = kTransparent;
        for (const std::uint32_t color : colors)
            bars->m_dataSetColors.push_back(Color(color));
        m_look.m_layers.AddLayer(bars);
    }

    Rows m_data;
    NamedColumn m_line;
};

} // namespace

std::unique_ptr<Example> MakeXYExample() {
    return std::make_unique<XYExample>();
}

#endif // DEMO_HAS_XY
