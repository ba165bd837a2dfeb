#include "engine/xy/bar_layer.h"

#include "engine/data/no_value.h"
#include "engine/xy/bar_shapes.h"
#include "engine/xy/covered_column.h"
#include "engine/xy/data_labels.h"
#include "engine/xy/depth.h"
#include "engine/xy/row_room.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace chartdraw {

namespace {

double valueAt(const DataSet& set, std::size_t row) {
    return row < set.data().size() ? set.data()[row] : kNoValue;
}

} // namespace

/// Where along x the bars of a row stand. All rows look alike: their bars begin and end the same whole
/// numbers of pixels from the row's middle.
class BarLayer::Places {
public:
    Places(const BarLayer& layer, const PlotFrame& frame) : m_layer(layer), m_frame(frame) {
        m_bars = layer.m_combine == Combine::Side ? std::max<std::size_t>(1, layer.dataSets().size()) : 1;
        const double room = rowRoom(layer, frame);
        double cluster = room * (1 - layer.m_gap);
        // Rows without a gap share their borders, wherever these fall; others keep a pixel between them.
        m_sharedBorders = layer.m_gap <= 0 || room < 2;
        if (!m_sharedBorders)
            cluster = std::clamp(std::round(cluster), 1.0, std::max(1.0, std::floor(room) - 1));
        // bars * width + (bars - 1) * gaps = cluster, where width + gap = pitch and gap = subGap * pitch
        m_pitch = cluster / std::max(1e-6, static_cast<double>(m_bars) - layer.m_subGap);
        m_width = m_pitch * (1 - layer.m_subGap);
        m_start = m_sharedBorders ? -cluster / 2 : std::floor((1 - cluster) / 2);
        m_mirrored = frame.x.lowerPixel() > frame.x.upperPixel();
    }

    /// First and last pixel of the bar of a data set in a row; false where it is out of sight.
    bool find(std::size_t row, std::size_t set, int& first, int& last) const {
        const double x = m_layer.xValue(row);
        const double middle = isValue(x) ? m_frame.x.pixel(x) : std::numeric_limits<double>::quiet_NaN();
        if (!showsX(m_frame, middle, m_frame.depth > 0 ? 0.5 : m_pitch * static_cast<double>(m_bars)))
            return false;
        std::size_t slot = m_layer.m_combine == Combine::Side ? set : 0;
        slot = m_mirrored ? m_bars - 1 - slot : slot;
        const double from = m_start + static_cast<double>(slot) * m_pitch;
        if (m_sharedBorders) {
            first = whole(middle + 0.5 + from);
            last = whole(middle + 0.5 + from + m_width) - 1;
        } else {
            first = whole(middle) + whole(from);
            last = whole(middle) + whole(from + m_width) - 1;
        }
        last = std::max(first, last);
        return true;
    }

    /// Whether no bar is wider than a pixel.
    bool narrow() const { return m_sharedBorders && m_width <= 1; }

private:
    const BarLayer& m_layer;
    const PlotFrame& m_frame;
    std::size_t m_bars = 1;
    bool m_sharedBorders = false, m_mirrored = false;
    double m_pitch = 0, m_width = 0; ///< pixels from bar to bar, and of a bar
    double m_start = 0;              ///< of the first bar from the row's middle
};

BarLayer::BarLayer(XYChart& chart, Combine combine, int depth)
    : Layer(Kind::BarLayer, chart, depth), m_combine(combine) {}

void BarLayer::setShape(int shape, int dataSet, int row) {
    dataSet = std::max(dataSet, -1);
    row = std::max(row, -1);
    std::erase_if(m_shapes, [=](const auto& entry) {
        return (dataSet == -1 || dataSet == entry.first.first) && (row == -1 || row == entry.first.second);
    });
    m_shapes[{dataSet, row}] = shape;
}

void BarLayer::setOverlap(double ratio, bool firstOnTop) {
    // As much of a bar's width as the ratio says, in parts of the way from bar to bar.
    const double limited = std::isnan(ratio) ? 0 : std::clamp(ratio, 0.0, 0.999999);
    m_subGap = -limited / (1 - limited);
    m_firstOnTop = firstOnTop;
}

void BarLayer::setGap(double gap, double subGap) {
    m_gap = std::isnan(gap) ? m_gap : std::clamp(gap, 0.0, 1.0);
    m_subGap = std::isnan(subGap) ? m_subGap : std::clamp(subGap, -1e6, 1.0);
}

int BarLayer::shapeOf(std::size_t set, std::size_t row) const {
    const int s = static_cast<int>(set);
    const int r = static_cast<int>(std::min<std::size_t>(row, std::numeric_limits<int>::max()));
    for (const auto& key : {std::pair(s, r), std::pair(-1, r), std::pair(s, -1), std::pair(-1, -1)}) {
        const auto found = m_shapes.find(key);
        if (found != m_shapes.end())
            return found->second;
    }
    return NoShape;
}

double BarLayer::sumOfSizes(std::size_t row) const {
    double sum = 0;
    for (const DataSet* set : dataSets()) {
        const double value = valueAt(*set, row);
        sum += isValue(value) ? std::abs(value) : 0;
    }
    return sum;
}

void BarLayer::piecesOf(std::size_t row, std::vector<Piece>& pieces) const {
    pieces.clear();
    const double sum = m_combine == Combine::Side ? 0 : sumOfSizes(row);
    const double scale = m_combine == Combine::Percentage && sum > 0 ? 100 / sum : 1;
    double up = 0, down = 0;
    for (std::size_t i = 0; i < dataSets().size(); ++i) {
        const double value = valueAt(*dataSets()[i], row);
        if (!isValue(value))
            continue;
        double& reached = value < 0 ? down : up;
        const double from = stacked() ? reached : 0;
        const double to = from + value * scale;
        if (stacked())
            reached = to;
        pieces.push_back({i, from, to, sum > 0 ? std::abs(value) * 100 / sum : 0});
    }
}

DataRange BarLayer::xRange() const {
    return widenedXRange(*this, Layer::xRange());
}

DataRange BarLayer::yRange() const {
    if (!stacked())
        return Layer::yRange();
    DataRange range;
    std::vector<Piece> pieces;
    for (std::size_t row = rows().begin; row < rows().end; ++row) {
        piecesOf(row, pieces);
        for (const Piece& piece : pieces)
            range.add(piece.to);
    }
    return fillsRange() ? percentRange(range) : range;
}

bool BarLayer::findSpan(const PlotFrame& frame, const Piece& piece, bool edged, int& from, int& to,
                        int& direction) {
    const double root = alongY(frame, piece.from), end = alongY(frame, piece.to);
    if (std::isnan(root) || std::isnan(end)) // a stack beyond all numbers
        return false;
    const int base = whole(root), tip = whole(end);
    direction = tip < base ? -1 : 1;
    if (tip != base) {
        // The pixel of the base line itself stays free; pieces of a stack share the line between them.
        from = base + (edged && piece.from != 0 ? 0 : direction);
        to = tip;
        return true;
    }
    if (piece.from != 0 || piece.to == 0)
        return false;
    const bool down = frame.y.upperPixel() > frame.y.lowerPixel();
    direction = (piece.to > 0) == down ? 1 : -1;
    from = to = base + direction; // however low, a bar is there
    return true;
}

bool BarLayer::isEdged(const Canvas& canvas, const DataSet& set) const {
    return lineWidth() > 0 && !canvas.colours().invisible(set.edge(borderColour()));
}

void BarLayer::drawPiece(Canvas& canvas, const PlotFrame& frame, const Places& places, std::size_t row,
                         const Piece& piece) const {
    int x0 = 0, x1 = 0, y0 = 0, y1 = 0, direction = 0;
    const DataSet& set = *dataSets()[piece.set];
    const bool edged = isEdged(canvas, set);
    if (!places.find(row, piece.set, x0, x1) || !findSpan(frame, piece, edged, y0, y1, direction))
        return;
    const QRect pixels = pixelRect(frame, x0, x1, y0, y1);
    const int shape = shapeOf(piece.set, row);
    if (frame.depth == 0 && !edged && borderEffect() == 0 && shape <= SquareShape) {
        canvas.fillRect(pixels, set.colour());
        return;
    }
    BarLook look;
    look.fill = set.colour();
    look.edge = set.edge(borderColour());
    look.side = orDefault(set.shadow(), set.colour());
    look.sideEdge = orDefault(set.shadowEdge(), look.edge);
    look.effect = borderEffect();
    look.edgeWidth = lineWidth();
    look.depth = frame.depth;
    drawBar(canvas, pixels, shape, frame.swapped ? (direction > 0 ? 6 : 4) : (direction < 0 ? 8 : 2), look);
}

std::vector<std::size_t> BarLayer::drawingOrder(const PlotFrame& frame) const {
    std::vector<std::size_t> order(rows().size());
    std::iota(order.begin(), order.end(), rows().begin);
    // What stands farther right, or farther up, hides the sides of its neighbour.
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const double difference = frame.x.pixel(xValue(a)) - frame.x.pixel(xValue(b));
        return frame.swapped ? difference > 0 : difference < 0;
    });
    return order;
}

bool BarLayer::joinsColumns(const Canvas& canvas, const PlotFrame& frame, const Places& places) const {
    return frame.depth == 0 && places.narrow() && borderEffect() == 0 && m_shapes.empty() &&
           std::ranges::all_of(
               dataSets(),
               [&](const DataSet* set) {
                   const QBrush brush = canvas.colours().brush(set->colour(), QRectF(0, 0, 1, 1));
                   return !isEdged(canvas, *set) && brush.style() == Qt::SolidPattern && brush.isOpaque();
               });
}

/// From the last bar to the first, each where no later one is.
void BarLayer::drawColumns(Canvas& canvas, const PlotFrame& frame, const Places& places) const {
    std::map<int, CoveredColumn> columns;
    std::vector<Piece> pieces;
    for (std::size_t row = rows().end; row-- > rows().begin;) {
        piecesOf(row, pieces);
        orderPieces(frame, pieces);
        for (std::size_t i = pieces.size(); i-- > 0;) {
            int x = 0, last = 0, from = 0, to = 0, direction = 0;
            if (places.find(row, pieces[i].set, x, last) &&
                findSpan(frame, pieces[i], false, from, to, direction))
                columns[x].paint(from, to, dataSets()[pieces[i].set]->colour());
        }
    }
    for (auto& [x, column] : columns)
        column.finish([&, x = x](int from, int to, Colour colour) {
            canvas.fillRect(pixelRect(frame, x, x, from, to), colour);
        });
}

/// Of one set the highest and the lowest bar of a column are enough.
void BarLayer::drawOnlySet(Canvas& canvas, const PlotFrame& frame, const Places& places) const {
    const std::span<const double> data = dataSets().front()->data();
    const std::size_t end = std::min(rows().end, data.size());
    for (std::size_t row = rows().begin, next = row; row < end; row = next) {
        int x = 0, last = 0;
        next = row + 1;
        if (!places.find(row, 0, x, last))
            continue;
        next = endOfRun(row, end, !hasXData(), [&](std::size_t other) {
            int otherX = 0;
            return places.find(other, 0, otherX, last) && otherX == x;
        });
        const DataRange range = dataSets().front()->range(row, next);
        if (!range.empty) {
            drawPiece(canvas, frame, places, row, {.to = range.max});
            drawPiece(canvas, frame, places, row, {.to = range.min});
        }
    }
}

void BarLayer::orderPieces(const PlotFrame& frame, std::vector<Piece>& pieces) const {
    if (m_firstOnTop && !stacked())
        std::reverse(pieces.begin(), pieces.end());
    else if (frame.depth > 0 && stacked())
        std::stable_sort(pieces.begin(), pieces.end(), [&](const Piece& a, const Piece& b) {
            const double difference = frame.y.pixel(a.from + a.to) - frame.y.pixel(b.from + b.to);
            return frame.swapped ? difference < 0 : difference > 0;
        });
    else if (frame.depth > 0 && (frame.x.lowerPixel() > frame.x.upperPixel()) != frame.swapped)
        std::reverse(pieces.begin(), pieces.end()); // a reversed axis
}

void BarLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    const Places places(*this, frame);
    std::vector<Piece> pieces;
    const auto drawRow = [&](std::size_t row) {
        piecesOf(row, pieces);
        orderPieces(frame, pieces);
        for (const Piece& piece : pieces)
            drawPiece(canvas, frame, places, row, piece);
    };
    if (frame.depth > 0) {
        for (const std::size_t row : drawingOrder(frame))
            drawRow(row);
        return;
    }
    const ClipScope clip(canvas, frame.inner());
    if (joinsColumns(canvas, frame, places)) {
        if (dataSets().size() == 1 && m_combine != Combine::Percentage)
            drawOnlySet(canvas, frame, places);
        else
            drawColumns(canvas, frame, places);
        return;
    }
    for (std::size_t row = rows().begin; row < rows().end; ++row)
        drawRow(row);
}

void BarLayer::drawLabels(Canvas& canvas, const PlotFrame& frame) {
    const Places places(*this, frame);
    std::vector<Piece> pieces;
    if (aggregateLabels() != nullptr) {
        DataLabels labels(canvas, *this, frame, *aggregateLabels(), aggregateLabelFormat());
        addBodies(labels, frame, places);
        for (std::size_t row = rows().begin; row < rows().end; ++row) {
            piecesOf(row, pieces);
            labelSums(labels, frame, places, row, pieces);
        }
    }
    if (dataLabels() == nullptr)
        return;
    // Beside a sum the values go into their bars.
    const bool inside = stacked() || aggregateLabels() != nullptr;
    DataLabels labels(canvas, *this, frame, *dataLabels(), dataLabelFormat());
    if (!inside)
        addBodies(labels, frame, places);
    for (std::size_t row = rows().begin; row < rows().end; ++row) {
        piecesOf(row, pieces);
        for (const Piece& piece : pieces) {
            int x0 = 0, x1 = 0;
            const bool nothing = inside && piece.to == piece.from; // there is no body to write into
            if (nothing || isHidden(piece, pieces) || !places.find(row, piece.set, x0, x1))
                continue;
            const DataSet* set = dataSets()[piece.set];
            const double tip = alongY(frame, piece.to);
            const double root = alongY(frame, piece.from);
            labels.draw({row, set, set->data()[row], piece.share},
                        {.alongX = (x0 + x1) / 2.0,
                         .alongY = inside ? (tip + root) / 2 : tip,
                         .side = inside          ? LabelSide::Inside
                                 : piece.to >= 0 ? LabelSide::Above
                                                 : LabelSide::Below,
                         .body = std::max(1.0, std::abs(tip - root)),
                         .first = x0,
                         .last = x1,
                         .overlaid = m_combine == Combine::Overlay,
                         .mayLeave = !inside && piece.to >= 0,
                         .ground = inside ? set->colour() : groundOf(piece, pieces),
                         .otherGround = set->colour()});
        }
    }
}

void BarLayer::addBodies(DataLabels& labels, const PlotFrame& frame, const Places& places) const {
    std::vector<Piece> pieces;
    for (std::size_t row = rows().begin; row < rows().end; ++row) {
        piecesOf(row, pieces);
        for (const Piece& piece : pieces) {
            int x0 = 0, x1 = 0;
            if (places.find(row, piece.set, x0, x1))
                labels.addBody(x0, x1, alongY(frame, piece.from), alongY(frame, piece.to));
        }
    }
}

/// Whether bars over each other leave nothing to be seen of one.
bool BarLayer::isHidden(const Piece& piece, std::span<const Piece> pieces) const {
    return m_combine == Combine::Overlay &&
           std::any_of(
               pieces.begin(), pieces.end(),
               [&](const Piece& other) {
                   const bool above = m_firstOnTop ? other.set < piece.set : other.set > piece.set;
                   return above && (piece.to >= 0 ? other.to >= piece.to : other.to <= piece.to);
               });
}

/// The colour that is seen beyond the tip of a bar, where a higher one stands behind it.
Colour BarLayer::groundOf(const Piece& piece, std::span<const Piece> pieces) const {
    const Piece* seen = nullptr;
    for (const Piece& other : pieces)
        if (m_combine == Combine::Overlay && (piece.to >= 0 ? other.to > piece.to : other.to < piece.to) &&
            (seen == nullptr || (other.set > seen->set) != m_firstOnTop))
            seen = &other;
    return seen != nullptr ? dataSets()[seen->set]->colour() : kTransparent;
}

void BarLayer::labelSums(DataLabels& labels, const PlotFrame& frame, const Places& places, std::size_t row,
                         std::span<const Piece> pieces) const {
    double sum = 0;
    const Piece *highest = nullptr, *lowest = nullptr;
    int x0 = 0, x1 = 0;
    const auto label = [&](const DataSet* set, double value, double share, const Piece& end) {
        const double tip = alongY(frame, end.to);
        labels.draw({row, set, value, share}, {.alongX = (x0 + x1) / 2.0,
                                               .alongY = tip,
                                               .side = end.to >= 0 ? LabelSide::Above : LabelSide::Below,
                                               .body = std::max(1.0, std::abs(tip - alongY(frame, end.from))),
                                               .first = x0,
                                               .last = x1,
                                               .overlaid = m_combine == Combine::Overlay,
                                               .mayLeave = end.to >= 0,
                                               .otherGround = dataSets()[end.set]->colour()});
    };
    for (const Piece& piece : pieces) {
        if (!places.find(row, piece.set, x0, x1))
            return;
        const DataSet* set = dataSets()[piece.set];
        sum += set->data()[row];
        if (piece.to >= 0 && (highest == nullptr || piece.to >= highest->to))
            highest = &piece;
        if (piece.to < 0 && (lowest == nullptr || piece.to < lowest->to))
            lowest = &piece;
        if (!stacked()) // each bar is a stack of its own
            label(set, set->data()[row], piece.share, piece);
    }
    const Piece* end = lowest != nullptr && (sum < 0 || highest == nullptr) ? lowest : highest;
    if (stacked() && end != nullptr)
        label(nullptr, sum, 100, *end);
}

void BarLayer::collectKeys(std::vector<LegendKey>& keys) const {
    for (const DataSet* set : dataSets()) {
        if (set->name().empty())
            continue;
        LegendKey key;
        key.fields = nameOnly(set->name());
        key.drawSymbol = [fill = set->colour(), edge = set->edge(borderColour()),
                          effect = borderEffect()](Canvas& canvas, const QRectF& area) {
            canvas.box(area.toRect(), fill, edge, effect);
        };
        keys.push_back(std::move(key));
    }
}

} // namespace chartdraw
