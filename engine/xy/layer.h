#pragma once
// What all layers of an XY chart are: data sets, x values, an axis, looks, and the questions that the chart
// asks before it draws them. A kind of layer derives from it in a file of its own.
//
// A picture is made in this order: the chart asks every layer for its ranges (xRange, yRange, needsZero,
// wantsIndent) and its depth, plans the axes, draws plot area, zones, grid and axis lines, then all layers by
// draw() in the order in which they were added, the labels of the axes, the marks, and last all labels by
// drawLabels(), so that no layer covers the labels of another.

#include "engine/axis/axis_map.h"
#include "engine/chart/draw_obj.h"
#include "engine/chart/legend.h"
#include "engine/xy/data_set.h"

#include <QPointF>
#include <QRect>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace chartdraw {

class Axis;
class XYChart;

/// Rows [begin, end) of the data: what trimming leaves.
struct RowRange {
    std::size_t begin = 0, end = 0;
    std::size_t size() const { return end - begin; }
};

/// Where a layer's values stand on the picture. Positions are as axis_map.h tells: whole numbers are centres
/// of pixels. Canvas::line and polyline take them as they are; paths and rectangles, whose whole numbers are
/// borders between pixels, want 0.5 added.
struct PlotFrame {
    AxisMap x, y;         ///< along the layer's x and y axis, wherever these run
    bool swapped = false; ///< x runs upwards, y to the right
    /// The pixels of the plot area, the lines of its frame included, moved by `depthOffset`.
    QRect plot;
    /// `plot` without the lines of its frame: what fills are clipped to, so that axis lines stay crisp.
    QRect inner() const { return plot.adjusted(1, 1, -1, -1); }
    /// The layer's front face from the front of the chart, in pixels: (z, -z).
    QPoint depthOffset;
    int depth = 0;     ///< pixels of this layer's bodies, 0 flat; the back of a body is at (depth, -depth)
    int decimals = 15; ///< that tell values on the y axis apart, for labels of values; below 0: tens...

    /// Position on the picture of a point given by its positions along the x and the y axis, and of one given
    /// by its values. Depth offset included.
    QPointF at(double alongX, double alongY) const {
        return swapped ? QPointF(alongY + depthOffset.x(), alongX + depthOffset.y())
                       : QPointF(alongX + depthOffset.x(), alongY + depthOffset.y());
    }
    QPointF point(double xValue, double yValue) const { return at(x.pixel(xValue), y.pixel(yValue)); }
    /// The position along y on which bars and areas stand: zero, or the end of the axis nearest to it; on a
    /// log scale the lower end.
    double baseLine() const;
};

class Layer : public Part {
public:
    static constexpr Kind kKind = Kind::Layer;

    XYChart& chart() const { return m_chart; }
    Axis& yAxis() const { return *m_yAxis; }

    /// One more series; -1 takes the next series colour of the chart.
    DataSet* addDataSet(Numbers data, Colour colour, std::string name);
    /// Null for an index without one.
    DataSet* dataSet(int index) const;
    const std::vector<DataSet*>& dataSets() const { return m_dataSets; }

    void setXData(Numbers data);
    /// The given x values of all rows, before trimming; empty where rows stand at 0, 1, 2...
    const Numbers& xData() const { return m_xData; }
    /// Whether the x values are numbers of their own, so that the x axis cannot be one of rows.
    bool hasXData() const { return !m_xData.empty(); }
    /// The x value of a row: given (a gap past their end), or its number counted from the first row shown.
    double xValue(std::size_t row) const;
    /// The number of rows before trimming: of the longest data set.
    virtual std::size_t rowCount() const;
    /// The rows shown.
    RowRange rows() const;

    void set3D(int depth, int zGap);
    void setLineWidth(int width);
    void setBorder(Colour colour, int effect);
    void setYAxis(Axis* axis); ///< ignored unless it is a y axis of the chart
    TextBox* setDataLabelStyle(const TextLook& look);
    TextBox* setAggregateLabelStyle(const TextLook& look);
    void setDataLabelFormat(std::string format);
    void setAggregateLabelFormat(std::string format);

    /// Pixels; 0 draws none.
    int lineWidth() const { return m_lineWidth >= 0 ? m_lineWidth : automaticLineWidth(); }
    Colour borderColour() const { return m_borderColour; } ///< -1 where none was set
    int borderEffect() const { return m_borderEffect; }
    const TextBox* dataLabels() const { return m_dataLabels; }           ///< null: none are shown
    const TextBox* aggregateLabels() const { return m_aggregateLabels; } ///< null: none are shown
    const std::string& dataLabelFormat() const { return m_dataLabelFormat; }
    const std::string& aggregateLabelFormat() const { return m_aggregateLabelFormat; }
    /// Pixels of depth, 0 flat; not more than the picture can show.
    int depth() const;
    /// Pixels between this layer's back and the front of the layer behind it.
    int zGap() const { return m_zGap; }

    /// The range of the x values of the rows shown. Bars and boxes add half their room at both ends.
    virtual DataRange xRange() const;
    /// The range of what is shown along y in the rows shown: of sums where sets are stacked; 0 to 100 for
    /// percentages, and -100 where there are negative ones. The base takes the values of all data sets.
    virtual DataRange yRange() const;
    /// Whether yRange is all that there can be, so that an axis for it keeps nothing free beyond:
    /// percentages.
    virtual bool fillsRange() const { return false; }
    /// Whether what is drawn begins at zero, so that the axis must show it.
    virtual bool needsZero() const { return false; }
    /// Whether half a row is wanted at both ends of an axis of rows.
    virtual bool wantsIndent() const { return false; }

    /// Draws everything but labels. Clips as it needs to: fills to frame.inner(), lines and symbols so that
    /// they are not cut in half at the frame.
    virtual void draw(Canvas& canvas, const PlotFrame& frame) = 0;
    /// Draws the data and aggregate labels, inside the picture.
    virtual void drawLabels(Canvas& canvas, const PlotFrame& frame);
    /// Adds a key for each named data set: the base a box of the data colour.
    virtual void collectKeys(std::vector<LegendKey>& keys) const;

protected:
    Layer(Kind kind, XYChart& chart, int depth = 0);

    /// Pixels of lines where no width was set.
    virtual int automaticLineWidth() const { return 1; }
    /// Pixels of depth where -1 was asked for.
    virtual int automaticDepth() const { return 10; }
    /// The whole range of percentages of which some of `range` are shown.
    static DataRange percentRange(const DataRange& range);

private:
    TextBox* labelStyle(TextBox*& box, const TextLook& look);

    XYChart& m_chart;
    Axis* m_yAxis;
    std::vector<DataSet*> m_dataSets;
    Numbers m_xData;
    int m_depth, m_zGap = 0;
    int m_lineWidth = -1; ///< pixels, -1 automatic
    Colour m_borderColour = kDefaultColour;
    int m_borderEffect = 0;
    TextBox* m_dataLabels = nullptr;
    TextBox* m_aggregateLabels = nullptr;
    std::string m_dataLabelFormat = "{value}";
    std::string m_aggregateLabelFormat = "{value}";
};

} // namespace chartdraw
