#include "render/render_xy_source.h"
#include "render/utf8_text.h"
#include <cstring>
#include <deque>
#include <numeric>
#include <string>

namespace {

constexpr int kLinear = 2; // m_scaleType of an axis
constexpr int kDates = 3;

/// Copies a structure of the host's, which may be of another version: what an older one lacks keeps its
/// default, what a newer one adds is left out. False for a size that is none.
template <class Structure>
bool ReadStructure(const void* from, Structure& to) {
    std::size_t size = 0;
    std::memcpy(&size, from, sizeof size);
    if (size < sizeof(Structure)) // the first version is still the newest
        return false;
    std::memcpy(&to, from, sizeof(Structure));
    return true;
}

/// The same for an array, whose elements are all of the first one's size.
template <class Structure>
bool ReadStructures(const Structure* from, int count, std::vector<Structure>& to) {
    if (count < 0 || (count > 0 && !from))
        return false;
    to.resize(static_cast<std::size_t>(count));
    const char* bytes = reinterpret_cast<const char*>(from);
    for (Structure& structure : to) {
        if (!ReadStructure(bytes, structure) || structure.size != to.front().size)
            return false;
        bytes += structure.size;
    }
    return true;
}

bool HasArray(const CXYLayerData& data, int type) {
    switch (type) {
    case 2:
        return data.x && data.y;
    case 4:
        return data.top || data.bottom || data.maximum || data.minimum || data.middle;
    case 5:
        return data.top || data.bottom;
    case 6:
    case 8:
        return data.high || data.low || data.open || data.close;
    default:
        return data.tasks;
    }
}

bool ReadSeries(XYHostData::Layer& layer, int rowCount) {
    if (!ReadStructures(layer.data.series, layer.data.seriesCount, layer.series))
        return false;
    for (const CXYSeriesData& series : layer.series)
        if (series.count != rowCount || (rowCount > 0 && !series.values))
            return false;
    return true;
}

bool ReadTasks(XYHostData::Layer& layer, int rowCount) {
    if (!ReadStructures(layer.data.tasks, layer.data.count, layer.tasks))
        return false;
    for (const CXYTaskData& task : layer.tasks)
        if (task.row < 0 || task.row >= rowCount)
            return false;
    return true;
}

bool IsOfSeries(int type) {
    return type == 0 || type == 1 || type == 3;
}

bool ShowsAnything(const XYHostData::Layer& layer, int type) {
    return IsOfSeries(type) ? !layer.series.empty() : layer.data.count > 0;
}

bool ReadLayer(XYHostData::Layer& layer, int type, int rowCount) {
    if (IsOfSeries(type))
        return ReadSeries(layer, rowCount);
    if (type == 7)
        return ReadTasks(layer, rowCount);
    const CXYLayerData& data = layer.data;
    if (data.count < 0 || (data.count > 0 && !HasArray(data, type)))
        return false;
    return type == 2 || !HasArray(data, type) || data.count == rowCount;
}

/// The host's list of names, as the format that lists them.
std::string FormatOfNames(const char* const* names, int count) {
    std::string format = "{value|";
    for (int i = 0; i < count; ++i) {
        format += '\t';
        const std::string name(names[i] ? CUtf8Text(names[i]) : CUtf8Text(""));
        for (const char c : name) {
            if (c == '\t' || c == '{' || c == '}' || c == '\\')
                format += '\\';
            format += c;
        }
    }
    return format + "}";
}

class HostSeries : public CXYSeriesList {
public:
    explicit HostSeries(const std::vector<CXYSeriesData>& series) : m_series(series) {}
    int Count() const override { return static_cast<int>(std::ssize(m_series)); }
    XYSeries At(int index) override {
        const CXYSeriesData& series = m_series[static_cast<std::size_t>(index)];
        const XYColumn values(series.values, static_cast<std::size_t>(series.count));
        if (!series.name)
            return {values};
        return {values, m_names.emplace_back(series.name)};
    }

private:
    const std::vector<CXYSeriesData>& m_series;
    std::deque<CUtf8Text> m_names; // which do not move
};

struct HostTasks : XYTasks {
    explicit HostTasks(const std::vector<CXYTaskData>& tasks) {
        for (const CXYTaskData& task : tasks) {
            m_rows.push_back(task.row);
            m_starts.push_back(task.start);
            m_ends.push_back(task.end);
        }
        groups = m_rows;
        start = m_starts;
        end = m_ends;
    }

private:
    std::vector<int> m_rows;
    std::vector<double> m_starts;
    std::vector<double> m_ends;
};

class HostLayer : public CXYLayerSource {
public:
    HostLayer(const CXYChart& look, const CXYChartData& chart, const XYHostData::Layer& layer)
        : m_look(look), m_chart(chart), m_layer(layer), m_data(layer.data) {}

    int SeriesColor(int) const override { return CHART_DEFAULT_COLOR; }
    std::unique_ptr<CXYSeriesList> Bars(int) override { return Series(); }
    std::unique_ptr<CXYSeriesList> Lines() override { return Series(); }
    std::unique_ptr<CXYSeriesList> Areas() override { return Series(); }
    XYPoints Points() override {
        m_placed = true;
        return {Column(m_data.x), Column(m_data.y), Column(m_data.bubbleSize)};
    }
    XYBoxes WhiskerBoxes() override {
        return {Column(m_data.top), Column(m_data.bottom), Column(m_data.maximum), Column(m_data.minimum),
                Column(m_data.middle)};
    }
    XYBoxes Boxes() override { return {Column(m_data.top), Column(m_data.bottom), {}, {}, {}}; }
    XYPrices Prices() override {
        return {Column(m_data.high), Column(m_data.low), Column(m_data.open), Column(m_data.close)};
    }
    std::unique_ptr<XYTasks> Tasks(int) override {
        m_placed = true;
        for (const CXYTaskData& task : m_layer.tasks)
            m_taskRows.push_back(task.row);
        return std::make_unique<HostTasks>(m_layer.tasks);
    }
    XYColumn RowValues() override {
        if (m_placed)
            return m_taskRows;
        const bool byDate = m_look.m_xAxis.m_scaleType == kDates;
        const double* values = m_data.x ? m_data.x : byDate ? m_chart.dates : nullptr;
        return values ? XYColumn(values, static_cast<std::size_t>(m_chart.rowCount)) : XYColumn();
    }

private:
    std::unique_ptr<CXYSeriesList> Series() { return std::make_unique<HostSeries>(m_layer.series); }
    XYColumn Column(const double* values) const {
        return values ? XYColumn(values, static_cast<std::size_t>(m_data.count)) : XYColumn();
    }

    const CXYChart& m_look;
    const CXYChartData& m_chart;
    const XYHostData::Layer& m_layer;
    const CXYLayerData& m_data;
    bool m_placed = false; // along x, by the layer's own data
    std::vector<double> m_taskRows;
};

} // namespace

std::optional<XYHostData> XYHostData::Read(const CXYChart& chart, const CXYChartData& data) {
    XYHostData result;
    if (!ReadStructure(&data, result.chart) || result.chart.rowCount < 0)
        return std::nullopt;
    std::vector<CXYLayerData> layers;
    if (!ReadStructures(result.chart.layers, result.chart.layerCount, layers))
        return std::nullopt;
    const int layerCount = chart.m_layers.GetLayerCount();
    result.layers.resize(static_cast<std::size_t>(layerCount));
    for (const CXYLayerData& layer : layers) {
        if (layer.layer < 0 || layer.layer >= layerCount)
            return std::nullopt;
        std::optional<Layer>& place = result.layers[static_cast<std::size_t>(layer.layer)];
        const CXYChartLayer* model = chart.m_layers.GetLayer(layer.layer);
        if (place || !model)
            return std::nullopt;
        place = Layer{layer, {}, {}};
        if (!ReadLayer(*place, model->GetType(), result.chart.rowCount))
            return std::nullopt;
        if (!ShowsAnything(*place, model->GetType()))
            place.reset();
    }
    return result;
}

void CXYHostSource::LabelRows(Axis* xAxis) {
    const int scaleType = m_look.m_xAxis.m_scaleType;
    const CXYChartData& chart = m_data.chart;
    if (scaleType == kLinear || scaleType == kDates || chart.rowCount == 0)
        return;
    if (chart.labels) {
        std::vector<double> numbers(static_cast<std::size_t>(chart.rowCount));
        std::iota(numbers.begin(), numbers.end(), 0.0);
        CAxis_setLabels2(xAxis, numbers.data(), chart.rowCount,
                         FormatOfNames(chart.labels, chart.rowCount).c_str());
    } else if (chart.dates) {
        CAxis_setLabels2(xAxis, chart.dates, chart.rowCount, nullptr);
    }
}

std::unique_ptr<CXYLayerSource> CXYHostSource::Layer(const CXYChartLayer& layer) {
    for (int i = 0; i < m_look.m_layers.GetLayerCount(); ++i)
        if (const auto& data = m_data.layers[static_cast<std::size_t>(i)];
            data && m_look.m_layers.GetLayer(i) == &layer)
            return std::make_unique<HostLayer>(m_look, m_data.chart, *data);
    return nullptr;
}
