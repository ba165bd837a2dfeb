#include "engine/xy/frame_layout.h"

#include "engine/paint/picture.h"
#include "engine/scale/nice_numbers.h"
#include "engine/text/alignment.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cstdint>

namespace chartdraw {

namespace {

constexpr std::size_t kFirstX = 0, kFirstY = 1; // in XYChart::axes()
constexpr std::size_t kMostRows = 1'000'000'000;

/// An axis's way to the axis whose scale it shows: value here = slope * value there + intercept.
struct Tie {
    std::size_t root = 0;
    double slope = 1, intercept = 0;
};

/// What layers say of an axis.
struct Bound {
    DataRange data;
    DataRange whole; ///< of layers that fill their range
    bool includeZero = false;
    bool any = false;
};

class FrameBuilder {
public:
    explicit FrameBuilder(const XYChart& chart)
        : m_chart(chart), m_axes(chart.axes()), m_bound(m_axes.size()), m_ties(m_axes.size()),
          m_states(m_axes.size(), State::New) {}

    FrameLayout build() {
        m_frame.plot = m_chart.plotArea()->frame();
        askLayers();
        for (std::size_t i = 0; i < m_axes.size(); ++i)
            findTie(i);
        planAxes();
        layoutAxes();
        placeLayers();
        return std::move(m_frame);
    }

private:
    enum class State : std::uint8_t { New, Open, Done };

    std::size_t indexOf(const Axis* axis) const {
        const auto found = std::find_if(m_axes.begin(), m_axes.end(),
                                        [=](const ChartAxis& own) { return own.axis == axis; });
        return static_cast<std::size_t>(found - m_axes.begin());
    }

    /// The x range of a layer on an axis of numbers: there no indent gives rows the room that bodies need.
    static DataRange numericXRange(const Layer& layer) {
        DataRange range = layer.xRange();
        if (layer.wantsIndent() && !layer.hasXData() && !range.empty) {
            const auto [first, last] = std::pair(range.min, range.max);
            range.add(first - 0.5);
            range.add(last + 0.5);
        }
        return range;
    }

    void askLayers() {
        std::size_t rows = 0;
        const std::vector<Layer*>& layers = m_chart.layers();
        const bool numbers =
            std::any_of(layers.begin(), layers.end(), [](const Layer* layer) { return layer->hasXData(); });
        for (const Layer* layer : layers) {
            Bound& x = m_bound[kFirstX];
            x.data.add(numbers ? numericXRange(*layer) : layer->xRange());
            x.any = true;
            Bound& y = m_bound[indexOf(&layer->yAxis())];
            (layer->fillsRange() ? y.whole : y.data).add(layer->yRange());
            y.any = true;
            y.includeZero = y.includeZero || layer->needsZero();
            rows = std::max(rows, layer->rows().size());
            m_indent = m_indent || layer->wantsIndent();
        }
        if (numbers)
            rows = 0;
        for (const ChartAxis& own : m_axes) {
            const ScaleSettings& scale = own.axis->scale();
            if (own.axis->direction() == Direction::X && scale.type == ScaleSettings::Type::Labels) {
                const RowRange shown = m_chart.rows(scale.labels.size());
                rows = std::max(rows, shown.size());
                m_firstRow = static_cast<int>(std::min(shown.begin, kMostRows));
            }
        }
        m_rowCount = static_cast<int>(std::min(rows, kMostRows));
    }

    /// The axis whose scale this one follows directly, and how; itself where there is none.
    Tie directTie(std::size_t index) const {
        const Axis& axis = *m_axes[index].axis;
        if (axis.syncedTo() != nullptr)
            return {indexOf(axis.syncedTo()), axis.syncSlope(), axis.syncIntercept()};
        const std::size_t first = axis.direction() == Direction::X ? kFirstX : kFirstY;
        const bool own = m_bound[index].any || axis.scale().limitsGiven ||
                         axis.scale().type == ScaleSettings::Type::Labels;
        return {own ? index : first, 1, 0};
    }

    const Tie& findTie(std::size_t index) {
        Tie& tie = m_ties[index];
        if (m_states[index] != State::New)
            return tie;
        m_states[index] = State::Open;
        tie = {index, 1, 0};
        const Tie direct = directTie(index);
        // An axis that is still open waits for this one: the ring is cut here.
        if (direct.root != index && m_states[direct.root] != State::Open) {
            const Tie& on = findTie(direct.root);
            const Tie whole{on.root, direct.slope * on.slope, direct.slope * on.intercept + direct.intercept};
            if (isValue(whole.slope) && whole.slope != 0 && isValue(whole.intercept))
                tie = whole; // beyond that the chain is too long for numbers, and the axis stands alone
        }
        m_states[index] = State::Done;
        return tie;
    }

    /// The range of an axis's data in the values of the axis that it is tied to.
    static DataRange onRoot(const DataRange& data, const Tie& tie) {
        DataRange result;
        if (!data.empty)
            for (const double value :
                 {data.min, data.max, data.minPositive > 0 ? data.minPositive : data.max})
                result.add((value - tie.intercept) / tie.slope);
        return result;
    }

    /// The side at which an axis is drawn.
    int drawnSide(const ChartAxis& own) const {
        int side = own.side;
        if (m_chart.yAxisOnRight() && !own.further && (side == Left || side == Right))
            side = side == Left ? Right : Left;
        if (m_chart.swapped()) {
            switch (side) {
            case Left:
                return BottomCenter;
            case Right:
                return TopCenter;
            case TopCenter:
                return Right;
            default:
                return Left;
            }
        }
        return side;
    }

    AxisPlace placeOf(std::size_t index) const {
        const ChartAxis& own = m_axes[index];
        const QRect& plot = m_frame.plot;
        AxisPlace place;
        place.side = drawnSide(own);
        place.from = place.upright() ? plot.top() : plot.left();
        place.to = place.upright() ? plot.bottom() : plot.right();
        place.across = place.side == Left        ? plot.left() - own.offset
                       : place.side == Right     ? plot.right() + own.offset
                       : place.side == TopCenter ? plot.top() - own.offset
                                                 : plot.bottom() + own.offset;
        place.picture = place.room = QRect(0, 0, m_chart.width(), m_chart.height());
        // Axes that are tied stand value by value beside each other, so they share margins and direction.
        const Axis* root = m_axes[m_ties[index].root].axis;
        place.setScaleEnds((root->direction() == own.axis->direction() ? root : own.axis)->scale());
        return place;
    }

    AxisRequest requestOf(std::size_t index, const AxisPlace& place) const {
        const Axis& axis = *m_axes[index].axis;
        AxisRequest request;
        request.symmetric = m_chart.symmetric(axis.direction());
        if (axis.direction() == Direction::X) {
            request.firstRow = m_firstRow;
            request.rowCount = m_rowCount;
            request.indent = m_indent;
        } else {
            request.rowCount = axis.scale().type == ScaleSettings::Type::Labels
                                   ? static_cast<int>(std::min(axis.scale().labels.size(), kMostRows))
                                   : 0;
        }
        request.length = place.scaleLength();
        request.upright = place.upright();
        request.labelRoom = labelRoomOf(axis, place);
        return request;
    }

    void planAxes() {
        m_plans.resize(m_axes.size());
        for (std::size_t i = 0; i < m_axes.size(); ++i) {
            if (m_ties[i].root == i) {
                AxisRequest request = requestOf(i, placeOf(i));
                for (std::size_t k = 0; k < m_axes.size(); ++k) {
                    if (m_ties[k].root == i && m_bound[k].any) {
                        request.data.add(onRoot(m_bound[k].data, m_ties[k]));
                        request.whole.add(onRoot(m_bound[k].whole, m_ties[k]));
                        request.includeZero =
                            request.includeZero || (m_bound[k].includeZero && m_ties[k].intercept == 0);
                    }
                }
                m_plans[i] = planAxis(*m_axes[i].axis, request);
            }
        }
        for (std::size_t i = 0; i < m_axes.size(); ++i) {
            const Tie& tie = m_ties[i];
            if (tie.root != i) {
                AxisRequest request = requestOf(i, placeOf(i));
                request.root = m_axes[tie.root].axis;
                request.rootScale = m_plans[tie.root].scale;
                request.slope = tie.slope;
                request.intercept = tie.intercept;
                m_plans[i] = planAxis(*m_axes[i].axis, request);
            }
        }
    }

    /// Moves the first axis of a direction to the zero of the other one.
    void moveToOrigin(AxisPlace& place, std::size_t other) const {
        const AxisPlace otherPlace = placeOf(other);
        const AxisMap map = m_plans[other].map(otherPlace.lower, otherPlace.upper);
        const int zero = std::clamp(map.wholePixel(map.clamp(0)), otherPlace.from, otherPlace.to);
        if (zero != place.across) {
            place.across = zero;
            place.avoid = otherPlace.across;
            place.room = m_frame.plot.adjusted(2, 2, -2, -2); // labels stand between the lines of the frame
        }
    }

    void layoutAxes() {
        for (std::size_t i = 0; i < m_axes.size(); ++i) {
            AxisPlace place = placeOf(i);
            if (i <= kFirstY && m_chart.atOrigin(m_axes[i].axis->direction())) {
                moveToOrigin(place, kFirstY - i);
                if (place.avoid && m_chart.atOrigin(m_axes[kFirstY - i].axis->direction())) {
                    AxisPlace crossing = placeOf(kFirstY - i);
                    moveToOrigin(crossing, i);
                    place.avoid = crossing.across;
                }
            }
            m_frame.axes.push_back(layoutAxis(*m_axes[i].axis, std::move(m_plans[i]), place));
        }
        clearCrossing();
    }

    /// Where the first axes cross inside the plot area, labels of the y axis give way to those of the x axis.
    void clearCrossing() {
        const AxisLayout& x = m_frame.axes[kFirstX];
        AxisLayout& y = m_frame.axes[kFirstY];
        if (x.place.avoid && y.place.avoid) {
            std::erase_if(
                y.labels,
                [&](const AxisLayout::Label& label) {
                    return std::any_of(
                        x.labels.begin(), x.labels.end(),
                        [&](const AxisLayout::Label& other) { return label.box().intersects(other.box()); });
                });
        }
    }

    /// Two more than the axis's own labels have.
    static int labelDecimals(const AxisLayout& axis) {
        const std::vector<AxisLayout::Tick>& ticks = axis.ticks;
        const bool steps = axis.map.scale().kind() == ScaleKind::Linear && ticks.size() > 1 && ticks[1].major;
        return steps ? stepDecimals(ticks[1].value - ticks[0].value) + 2 : PlotFrame().decimals;
    }

    void placeLayers() {
        const std::vector<Layer*>& layers = m_chart.layers();
        m_frame.layers.resize(layers.size());
        int z = 0;
        for (std::size_t i = layers.size(); i-- > 0;) { // the last one stands in front
            PlotFrame& frame = m_frame.layers[i];
            frame.x = m_frame.axes[kFirstX].map;
            frame.y = m_frame.axes[indexOf(&layers[i]->yAxis())].map;
            frame.swapped = m_chart.swapped();
            frame.decimals = labelDecimals(m_frame.axes[indexOf(&layers[i]->yAxis())]);
            frame.depth = layers[i]->depth();
            frame.depthOffset = QPoint(z, -z);
            frame.plot = m_frame.plot.translated(frame.depthOffset);
            m_frame.depth = z + frame.depth;
            z = std::min(m_frame.depth + layers[i]->zGap(), kMaxSide);
        }
    }

    const XYChart& m_chart;
    const std::vector<ChartAxis>& m_axes;
    std::vector<Bound> m_bound;
    std::vector<Tie> m_ties;
    std::vector<State> m_states;
    std::vector<AxisPlan> m_plans;
    int m_firstRow = 0, m_rowCount = 0;
    bool m_indent = false;
    FrameLayout m_frame;
};

} // namespace

FrameLayout layoutFrame(const XYChart& chart) {
    return FrameBuilder(chart).build();
}

} // namespace chartdraw
