#include "render/render_xy_source.h"
#include "render/utf8_text.h"
#include <deque>
#include <numeric>
#include <string>

namespace {

constexpr int kLinear = 2; // m_scaleType of an axis
constexpr int kDates = 3;

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

bool SeriesFit(const CSizedArray<CXYSeriesData>& series, int rowCount) {
    for (int i = 0; series.IsGood() && i < series.Count(); ++i)
        if (series[i].count != rowCount || (rowCount > 0 && !series[i].values))
            return false;
    return series.IsGood();
}

bool TasksFit(const CSizedArray<CXYTaskData>& tasks, int rowCount) {
    for (int i = 0; tasks.IsGood() && i < tasks.Count(); ++i)
        if (tasks[i].row < 0 || tasks[i].row >= rowCount)
            return false;
    return tasks.IsGood();
}

bool IsOfSeries(int type) {
    return type == 0 || type == 1 || type == 3;
}

bool LayerFits(const XYHostData::Layer& layer, int type, int rowCount) {
    if (IsOfSeries(type))
        return SeriesFit(layer.series, rowCount);
    if (type == 7)
        return TasksFit(layer.tasks, rowCount);
    const CXYLayerData& data = layer.data;
    if (data.count < 0 || (data.count > 0 && !HasArray(data, type)))
        return false;
    return type == 2 || !HasArray(data, type) || data.count == rowCount;
}

bool ShowsAnything(const XYHostData::Layer& layer, int type) {
    return IsOfSeries(type) ? layer.series.Count() > 0 : layer.data.count > 0;
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
    explicit HostSeries(const CSizedArray<CXYSeriesData>& series) : m_series(series) {}
    int Count() const override { return m_series.Count(); }
    XYSeries At(int index) override {
        const CXYSeriesData& series = m_series[index];
        const XYColumn values(series.values, static_cast<std::size_t>(series.count));
        if (!series.name)
            return {values};
        return {values, m_names.emplace_back(series.name)};
    }

private:
    CSizedArray<CXYSeriesData> m_series;
    std::deque<CUtf8Text> m_names; // which do not move
};

struct HostTasks : XYTasks {
    explicit HostTasks(const CSizedArray<CXYTaskData>& tasks) {
        for (int i = 0; i < tasks.Count(); ++i) {
            m_rows.push_back(tasks[i].row);
            m_starts.push_back(tasks[i].start);
            m_ends.push_back(tasks[i].end);
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
        for (int i = 0; i < m_layer.tasks.Count(); ++i)
            m_taskRows.push_back(m_layer.tasks[i].row);
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
    const CSizedArray<CXYLayerData> entries(data.layers, data.layerCount);
    if (data.size < sizeof(CXYChartData) || data.rowCount < 0 || !entries.IsGood())
        return std::nullopt;
    XYHostData result{data};
    const int layerCount = chart.m_layers.GetLayerCount();
    result.layers.resize(static_cast<std::size_t>(layerCount));
    for (int i = 0; i < entries.Count(); ++i) {
        const CXYLayerData& entry = entries[i];
        if (entry.layer < 0 || entry.layer >= layerCount)
            return std::nullopt;
        std::optional<Layer>& place = result.layers[static_cast<std::size_t>(entry.layer)];
        const CXYChartLayer* model = chart.m_layers.GetLayer(entry.layer);
        if (place || !model)
            return std::nullopt;
        place.emplace(Layer{entry, CSizedArray(entry.series, entry.seriesCount),
                            CSizedArray(entry.tasks, entry.count)});
        if (!LayerFits(*place, model->GetType(), data.rowCount))
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
