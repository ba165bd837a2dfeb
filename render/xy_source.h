#pragma once
// What the layers of an XY chart show. A model tells looks only; drawing asks a source for the data of each
// layer as it comes to it. There are two: samples, and the arrays of a host.

#include <chartdraw/surface.h>
#include <charteditors/xy_chart.h>
#include <memory>
#include <span>

using XYColumn = std::span<const double>;

inline int Count(XYColumn column) {
    return static_cast<int>(std::ssize(column));
}

/// One data set. A null name is the layer's own.
struct XYSeries {
    XYColumn values;
    const char* name = nullptr; // UTF-8
};

/// The data sets of a layer, to be asked for once each, in order.
class CXYSeriesList {
public:
    virtual ~CXYSeriesList() = default;
    virtual int Count() const = 0;
    virtual XYSeries At(int index) = 0;
};

struct XYPoints {
    XYColumn x;
    XYColumn y;
    XYColumn size; ///< Pixels, of bubbles.
};

struct XYBoxes {
    XYColumn top;
    XYColumn bottom;
    XYColumn maximum;
    XYColumn minimum;
    XYColumn middle;
};

struct XYPrices {
    XYColumn high;
    XYColumn low;
    XYColumn open;
    XYColumn close;
};

/// Bars of a plan, good as long as the object lives.
struct XYTasks {
    virtual ~XYTasks() = default;
    std::span<const int> groups; ///< Of each bar; empty: bar i is of group i.
    XYColumn end;
    XYColumn start;
};

/// The data of one layer. A drawing asks for what the layer's kind shows, and then for RowValues. Arrays are
/// good until the object ends, unless something else is said.
class CXYLayerSource {
public:
    virtual ~CXYLayerSource() = default;

    /// The colour of series `k` if the model gives it none.
    virtual int SeriesColor(int k) const = 0;
    /// The data sets of bars, of which the model has colours for `colorCount`. They end with the list.
    virtual std::unique_ptr<CXYSeriesList> Bars(int colorCount) = 0;
    virtual std::unique_ptr<CXYSeriesList> Lines() = 0;
    virtual std::unique_ptr<CXYSeriesList> Areas() = 0;
    virtual XYPoints Points() = 0;
    virtual XYBoxes WhiskerBoxes() = 0;
    virtual XYBoxes Boxes() = 0; ///< Top and bottom.
    virtual XYPrices Prices() = 0;
    virtual std::unique_ptr<XYTasks> Tasks(int groupCount) = 0;
    /// The x values of the rows; empty: they stand at 0, 1, 2...
    virtual XYColumn RowValues() = 0;
};

/// The data of a chart.
class CXYSource {
public:
    virtual ~CXYSource() = default;

    /// Whether the data are made up: what only a preview shows goes with them.
    virtual bool IsSample() const = 0;
    /// Gives the x axis the names of the rows, if they have any.
    virtual void LabelRows(Axis* xAxis) = 0;
    /// Null if nothing is to be drawn.
    virtual std::unique_ptr<CXYLayerSource> Layer(const CXYChartLayer& layer) = 0;
};
