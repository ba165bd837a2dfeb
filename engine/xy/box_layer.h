#pragma once
// Layers of one body a row that is told by several values: boxes, price bars, candles. The values are data
// sets of the layer; the first one carries the colour and the name of the whole.

#include "engine/xy/layer.h"

#include <span>
#include <string>
#include <utility>
#include <vector>

namespace chartdraw {

class CoveredColumn;

class BaseBoxLayer : public Layer {
public:
    static constexpr Kind kKind = Kind::BaseBoxLayer;

    void setDataGap(double gap);   ///< free part of a row's room, 0 to 1
    void setDataWidth(int pixels); ///< 0 or less: by the gap

    DataRange xRange() const override;
    bool wantsIndent() const override { return true; }
    void draw(Canvas& canvas, const PlotFrame& frame) override;
    void drawLabels(Canvas& canvas, const PlotFrame& frame) override;
    void collectKeys(std::vector<LegendKey>& keys) const override;

protected:
    /// `series`: the values of a row, in the order that the kind says; `colour` is the first one's.
    BaseBoxLayer(Kind kind, XYChart& chart, std::vector<Numbers> series, Colour colour, std::string name);

    /// A row's place: the middle pixel along x, and the first and last one of the body. The body has an odd
    /// number of pixels, so that what stands in its middle does.
    struct Place {
        std::size_t row = 0;
        int middle = 0, first = 0, last = 0;
    };
    virtual void drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const = 0;
    /// Whether rows of one pixel's width in one column may go to drawColumn together, and the later ones hide
    /// the earlier ones whole.
    virtual bool joinsColumns(const Canvas& /*canvas*/, const PlotFrame& /*frame*/) const { return false; }
    /// Rows [begin, end) at the pixel `x`.
    virtual void drawColumn(Canvas& /*canvas*/, const PlotFrame& /*frame*/, int /*x*/, std::size_t /*begin*/,
                            std::size_t /*end*/) const {}
    /// The value at which a label stands, with the row's fields; false for a row that is a gap.
    virtual bool labelOf(std::size_t row, double& value,
                         std::vector<std::pair<std::string_view, double>>& fields) const = 0;
    /// The key of the legend, drawn into `area`.
    virtual void drawKey(Canvas& canvas, const QRect& area) const = 0;

    double at(std::size_t series, std::size_t row) const;
    /// The pixel along y of a value. Not for gaps.
    static int pixel(const PlotFrame& frame, double value);
    /// Whether a wick from a body's end to `to` rises from a face of the body that is seen, so that it is to
    /// be drawn after the body.
    static bool standsOnBody(const PlotFrame& frame, double from, double to);
    const DataSet& set() const { return *dataSets().front(); }
    /// How wide the edge of a body is, given its pixels along x and along y: the line width, or what leaves
    /// the fill a third of the one and a pixel of the other.
    int edgeWidth(int alongX, int alongY) const;

private:
    /// The largest part of a row's room that it takes.
    virtual double widest() const { return 1; }

    /// The pixels of a body along x.
    int bodyWidth(const PlotFrame& frame) const;
    /// False where the row is out of sight.
    bool findPlace(const PlotFrame& frame, std::size_t row, int width, Place& place) const;
    template <class Visit>
    void forEachPlace(const PlotFrame& frame, const Visit& visit) const;
    void drawColumns(Canvas& canvas, const PlotFrame& frame) const;

    double m_gap = 0.5;
    int m_width = 0;
};

/// A box between top and bottom, whiskers to maximum and minimum, a line in the middle. Each may be missing.
class BoxWhiskerLayer : public BaseBoxLayer {
public:
    static constexpr Kind kKind = Kind::BoxWhiskerLayer;
    enum Series { Top, Bottom, Maximum, Minimum, Middle };

    BoxWhiskerLayer(XYChart& chart, std::vector<Numbers> series, Colour fill, Colour whisker, Colour edge,
                    std::string name);

    /// Colours and names by row; rows past the end take the colours from the first one again.
    void setBoxColours(std::vector<Colour> colours, std::vector<std::string> names);
    void collectKeys(std::vector<LegendKey>& keys) const override;

protected:
    void drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const override;
    bool labelOf(std::size_t row, double& value,
                 std::vector<std::pair<std::string_view, double>>& fields) const override;
    void drawKey(Canvas& canvas, const QRect& area) const override;

private:
    Colour fillOf(std::size_t row) const;
    void drawWhisker(Canvas& canvas, const PlotFrame& frame, const Place& place, double from,
                     double to) const;

    Colour m_whisker;
    std::vector<Colour> m_colours;
    std::vector<std::string> m_names;
};

/// What price bars and candles share.
class PriceLayer : public BaseBoxLayer {
public:
    enum Series { High, Low, Open, Close };
    static constexpr std::size_t kSeries = 4;

protected:
    using BaseBoxLayer::BaseBoxLayer;
    bool labelOf(std::size_t row, double& value,
                 std::vector<std::pair<std::string_view, double>>& fields) const override;
    /// Whether the row shows anything: it has a high and a low.
    bool shows(std::size_t row) const;

    bool joinsColumns(const Canvas& canvas, const PlotFrame& frame) const override;
    void drawColumn(Canvas& canvas, const PlotFrame& frame, int x, std::size_t begin,
                    std::size_t end) const override;
    /// The colours that rows are drawn in.
    virtual std::vector<Colour> colours() const = 0;
    /// A row of one pixel's width, what is drawn last coming first.
    virtual void paintRow(CoveredColumn& column, const PlotFrame& frame, std::size_t row) const = 0;
};

/// An upright line from low to high, with a tick for the open on the left and one for the close on the right.
class HLOCLayer : public PriceLayer {
public:
    static constexpr Kind kKind = Kind::HLOCLayer;

    HLOCLayer(XYChart& chart, std::vector<Numbers> series, Colour colour);

    /// With `byClose`: `rise` where the close is not below the one before, `fall` where it is; `leadValue` is
    /// the close before the first row, a gap for none. -1: the colour of the layer.
    void setColourMethod(bool byClose, Colour rise, Colour fall, double leadValue);

    void draw(Canvas& canvas, const PlotFrame& frame) override;

protected:
    void drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const override;
    void drawKey(Canvas& canvas, const QRect& area) const override;

private:
    std::vector<Colour> colours() const override;
    void paintRow(CoveredColumn& column, const PlotFrame& frame, std::size_t row) const override;
    /// The ticks of neighbours are to stay apart, or they read as one line.
    double widest() const override { return 2.0 / 3; }
    Colour colourOf(std::size_t row) const;
    std::vector<bool> falls() const;

    bool m_byClose = false;
    Colour m_rise = kDefaultColour, m_fall = kDefaultColour;
    double m_leadValue;
    std::vector<bool> m_falls; ///< of the rows, while they are drawn
};

/// A body between open and close, and a wick from low to high.
class CandleStickLayer : public PriceLayer {
public:
    static constexpr Kind kKind = Kind::CandleStickLayer;

    CandleStickLayer(XYChart& chart, std::vector<Numbers> series, Colour rise, Colour fall, Colour edge);

protected:
    void drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const override;
    void drawKey(Canvas& canvas, const QRect& area) const override;

private:
    std::vector<Colour> colours() const override;
    void paintRow(CoveredColumn& column, const PlotFrame& frame, std::size_t row) const override;
    /// Without one of their own narrow candles have no edge, and all of them show whether they rise.
    bool hasOwnEdge() const;
    Colour edgeColour() const;
    /// Of a body, which without a height is a line of its edge, if it has one.
    Colour fillOf(double open, double close, bool hasEdge) const;

    Colour m_fall;
};

} // namespace chartdraw
