#include "render/xy_samples.h"
#include "render/sample_data.h"
#include <initializer_list>
#include <list>

namespace {

constexpr int kRows = 6;
constexpr int kColorColumn = 5;
constexpr int kDateColumn = 6;
constexpr int kFirstSeriesColor = 8; // entries of the chart's palette
constexpr int kLastSeriesColor = 39;
constexpr double kTwoDays = 172800.0; // seconds
constexpr double kTenDays = 864000.0;

/// What sample values along y are to be: always by the chart's first y axis, whichever axis a layer uses.
struct YSampleRange {
    explicit YSampleRange(const CXYChartAxis& axis) {
        if (axis.m_scaleType == 2) {
            lower = axis.m_lowerLimit;
            upper = axis.m_upperLimit;
        } else if (axis.m_scaleType == 3) {
            lower = axis.m_dateLowerLimit;
            upper = axis.m_dateUpperLimit;
        } else {
            given = false;
        }
    }

    void FillColumn(const CRandomTable& table, int column) const {
        CRanTable_setCol(table.Get(), column, lower, upper);
    }
    /// Fills columns 0 to 3 with high, low, open and close.
    void FillPrices(const CRandomTable& table) const {
        const double delta = given ? kTwoDays : 5.0;
        CRanTable_setHLOCCols(table.Get(), 0, (upper - lower) * 0.5, -delta, delta, lower, upper);
    }

    double lower = 0.0;
    double upper = 50.0;
    bool given = true;
};

class FilledSeries : public CXYSeriesList {
public:
    explicit FilledSeries(std::vector<XYColumn> columns) : m_columns(std::move(columns)) {}
    int Count() const override { return static_cast<int>(std::ssize(m_columns)); }
    XYSeries At(int index) override { return {m_columns[static_cast<std::size_t>(index)]}; }

private:
    std::vector<XYColumn> m_columns;
};

/// Each data set is made when it is asked for.
class BarSeries : public CXYSeriesList {
public:
    BarSeries(int seed, int count, const YSampleRange& range)
        : m_table(seed, count, kRows), m_count(count), m_range(range) {}
    int Count() const override { return m_count; }
    XYSeries At(int index) override {
        m_range.FillColumn(m_table, index);
        return {m_columns.emplace_back(m_table, index)};
    }

private:
    CRandomTable m_table;
    int m_count;
    YSampleRange m_range;
    std::list<CRoundedData> m_columns;
};

struct SampleTasks : XYTasks {
    SampleTasks(const CRandomTable& table, const YSampleRange& range)
        : m_end((range.FillPrices(table), table), 0), m_start(table, 1) {
        end = m_end;
        start = m_start;
    }

private:
    CRoundedData m_end;
    CRoundedData m_start;
};

/// One task for each group, of a table of their own.
struct GroupTasks : XYTasks {
    GroupTasks(int seed, int count, const YSampleRange& range)
        : m_table(seed, 5, count), m_tasks(m_table, range) {
        end = m_tasks.end;
        start = m_tasks.start;
    }

private:
    CRandomTable m_table;
    SampleTasks m_tasks;
};

class LayerSamples : public CXYLayerSource {
public:
    LayerSamples(const CXYChart& chart, int seed)
        : m_chart(chart), m_seed(seed), m_range(chart.m_yAxis),
          m_table(static_cast<int>(static_cast<unsigned>(seed) + 2U), 7, kRows) {
        CRanTable_setCol(m_table.Get(), kColorColumn, kFirstSeriesColor, kLastSeriesColor);
        m_colors = m_table.Column(kColorColumn);
    }

    /// An entry of the palette, chosen by the seed.
    int SeriesColor(int k) const override {
        const auto row = static_cast<std::size_t>(k);
        return row < m_colors.size() ? CHART_BACKGROUND_COLOR | static_cast<int>(m_colors[row] + 0.5)
                                     : CHART_DEFAULT_COLOR;
    }
    std::unique_ptr<CXYSeriesList> Bars(int colorCount) override {
        return std::make_unique<BarSeries>(m_seed, colorCount > 0 ? colorCount : 3, m_range);
    }
    std::unique_ptr<CXYSeriesList> Lines() override { return Series({0}); }
    std::unique_ptr<CXYSeriesList> Areas() override { return Series({0, 1, 2}); }
    XYPoints Points() override {
        CRanTable_setCol(m_table.Get(), 0, 0.0, kRows);
        m_range.FillColumn(m_table, 1);
        CRanTable_setCol(m_table.Get(), 2, 10.0, 40.0);
        const std::vector<XYColumn> columns = Rounded({0, 1, 2});
        return {columns[0], columns[1], columns[2]};
    }
    XYBoxes WhiskerBoxes() override {
        const XYPrices prices = Prices();
        return {prices.open, prices.close, prices.high, prices.low, {}};
    }
    XYBoxes Boxes() override {
        const std::vector<XYColumn> columns = Filled({0, 1});
        return {columns[0], columns[1], {}, {}, {}};
    }
    XYPrices Prices() override {
        m_range.FillPrices(m_table);
        const std::vector<XYColumn> columns = Rounded({0, 1, 2, 3});
        return {columns[0], columns[1], columns[2], columns[3]};
    }
    std::unique_ptr<XYTasks> Tasks(int groupCount) override {
        if (groupCount > 0)
            return std::make_unique<GroupTasks>(m_seed, groupCount, m_range);
        return std::make_unique<SampleTasks>(m_table, m_range);
    }
    /// Dates, ten days apart, on an axis of dates.
    XYColumn RowValues() override {
        if (m_chart.m_xAxis.m_scaleType != 3)
            return {};
        CRanTable_setDateCol(m_table.Get(), kDateColumn, m_chart.m_xAxis.m_dateLowerLimit, kTenDays, false);
        return m_table.Column(kDateColumn);
    }

private:
    std::vector<XYColumn> Rounded(std::initializer_list<int> columns) {
        std::vector<XYColumn> result;
        for (const int column : columns)
            result.push_back(m_rounded.emplace_back(m_table, column));
        return result;
    }
    std::vector<XYColumn> Filled(std::initializer_list<int> columns) {
        for (const int column : columns)
            m_range.FillColumn(m_table, column);
        return Rounded(columns);
    }
    std::unique_ptr<CXYSeriesList> Series(std::initializer_list<int> columns) {
        return std::make_unique<FilledSeries>(Filled(columns));
    }

    const CXYChart& m_chart;
    int m_seed;
    YSampleRange m_range;
    CRandomTable m_table;
    XYColumn m_colors; // entries of the palette, not yet whole numbers
    std::list<CRoundedData> m_rounded;
};

} // namespace

std::unique_ptr<CXYLayerSource> CXYSamples::Layer(const CXYChartLayer& layer) {
    return std::make_unique<LayerSamples>(m_chart, layer.GetSeed());
}
