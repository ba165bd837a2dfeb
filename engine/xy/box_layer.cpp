#include "engine/xy/box_layer.h"

#include "engine/data/no_value.h"
#include "engine/xy/bar_shapes.h"
#include "engine/xy/data_labels.h"
#include "engine/xy/row_room.h"
#include "engine/xy/xy_chart.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

BaseBoxLayer::BaseBoxLayer(Kind kind, XYChart& chart, std::vector<Numbers> series, Colour colour,
                           std::string name)
    : Layer(kind, chart) {
    for (Numbers& values : series) {
        const bool first = dataSets().empty();
        addDataSet(std::move(values), first ? colour : kTransparent, first ? std::move(name) : std::string());
    }
}

void BaseBoxLayer::setDataGap(double gap) {
    m_gap = std::isnan(gap) ? m_gap : std::clamp(gap, 0.0, 1.0);
}

void BaseBoxLayer::setDataWidth(int pixels) {
    m_width = std::clamp(pixels, 0, kMaxSymbolSize);
}

double BaseBoxLayer::at(std::size_t series, std::size_t row) const {
    const std::span<const double> data = dataSets()[series]->data();
    return row < data.size() && isValue(data[row]) ? data[row] : kNoValue;
}

int BaseBoxLayer::pixel(const PlotFrame& frame, double value) {
    // Not by alongY: a box has no base line, and 0 is a value as any other.
    const QRect plot = frame.plot.translated(-frame.depthOffset);
    const int beyond = frame.depth > 0 ? 0 : 50;
    const int low = (frame.swapped ? plot.left() : plot.top()) - beyond;
    const int high = (frame.swapped ? plot.right() : plot.bottom()) + beyond;
    return whole(std::clamp<double>(frame.y.pixel(value), low, high));
}

int BaseBoxLayer::edgeWidth(int alongX, int alongY) const {
    return std::min({lineWidth(), (alongX - 1) / 3, (alongY - 1) / 2});
}

bool BaseBoxLayer::standsOnBody(const PlotFrame& frame, double from, double to) {
    if (frame.depth == 0 || !isValue(from) || !isValue(to))
        return false;
    const double reach = frame.y.pixel(to) - frame.y.pixel(from);
    return frame.swapped ? reach > 0 : reach < 0;
}

DataRange BaseBoxLayer::xRange() const {
    return widenedXRange(*this, Layer::xRange());
}

int BaseBoxLayer::bodyWidth(const PlotFrame& frame) const {
    if (m_width != 0)
        return m_width;
    const double room = rowRoom(*this, frame);
    // A pixel between neighbours, where that is not all they have.
    const double most = room < 4 ? room : room - 1;
    const int width =
        static_cast<int>(std::floor(std::min(most, std::round(room * std::min(1 - m_gap, widest())))));
    return std::max(1, width - (width % 2 == 1 ? 0 : 1));
}

bool BaseBoxLayer::findPlace(const PlotFrame& frame, std::size_t row, int width, Place& place) const {
    const double x = xValue(row);
    if (!isValue(x))
        return false;
    const double middle = frame.x.pixel(x);
    const int first = whole(middle) - width / 2;
    place = {row, whole(middle), first, first + width - 1};
    return showsX(frame, middle, frame.depth > 0 ? 0.5 : width);
}

template <class Visit>
void BaseBoxLayer::forEachPlace(const PlotFrame& frame, const Visit& visit) const {
    const int width = bodyWidth(frame);
    Place place;
    for (std::size_t row = rows().begin; row < rows().end; ++row)
        if (findPlace(frame, row, width, place))
            visit(place);
}

void BaseBoxLayer::drawColumns(Canvas& canvas, const PlotFrame& frame) const {
    Place place, other;
    for (std::size_t row = rows().begin, next = row; row < rows().end; row = next) {
        next = row + 1;
        if (!findPlace(frame, row, 1, place))
            continue;
        next = endOfRun(row, rows().end, !hasXData(), [&](std::size_t candidate) {
            return findPlace(frame, candidate, 1, other) && other.middle == place.middle;
        });
        drawColumn(canvas, frame, place.middle, row, next);
    }
}

void BaseBoxLayer::draw(Canvas& canvas, const PlotFrame& frame) {
    const ClipScope clip(canvas,
                         frame.depth > 0 ? QRect(0, 0, canvas.width(), canvas.height()) : frame.inner());
    if (joinsColumns(canvas, frame) && bodyWidth(frame) == 1)
        drawColumns(canvas, frame);
    else
        forEachPlace(frame, [&](const Place& place) { drawRow(canvas, frame, place); });
}

void BaseBoxLayer::drawLabels(Canvas& canvas, const PlotFrame& frame) {
    if (dataLabels() == nullptr)
        return;
    DataLabels labels(canvas, *this, frame, *dataLabels(), dataLabelFormat());
    std::vector<std::pair<std::string_view, double>> fields;
    double highest = 0, lowest = 0, value = 0;
    const auto find = [&](const Place& place) {
        value = kNoValue;
        fields.clear();
        if (!labelOf(place.row, value, fields))
            return false;
        highest = lowest = value;
        for (const auto& [name, number] : fields) {
            highest = isValue(number) ? std::max(highest, number) : highest;
            lowest = isValue(number) ? std::min(lowest, number) : lowest;
        }
        return true;
    };
    forEachPlace(
        frame,
        [&](const Place& place) {
            if (find(place))
                labels.addBody(place.first, place.last, pixel(frame, lowest), pixel(frame, highest));
        });
    forEachPlace(frame, [&](const Place& place) {
        if (find(place)) {
            // On a wick a label would be struck through, in a plain box it is not.
            const bool wicks = std::any_of(fields.begin() + 2, fields.end(),
                                           [](const auto& field) { return isValue(field.second); });
            const double above = pixel(frame, highest), below = pixel(frame, lowest);
            // The first two fields are the ends of the body; the label is at that of the first.
            const bool upsideDown = fields[0].second < fields[1].second;
            labels.draw({place.row, &set(), value, NAN, fields},
                        {.alongX = static_cast<double>(place.middle),
                         .alongY = upsideDown ? below : above,
                         .side = upsideDown ? LabelSide::Below : LabelSide::Above,
                         .otherY = wicks ? (upsideDown ? above : below) : NAN,
                         .body = std::abs(above - below),
                         .first = wicks ? 0 : place.first,
                         .last = wicks ? -1 : place.last});
        }
    });
}

void BaseBoxLayer::collectKeys(std::vector<LegendKey>& keys) const {
    if (!set().name().empty()) {
        LegendKey key;
        key.fields = nameOnly(set().name());
        key.drawSymbol = [this](Canvas& canvas, const QRectF& area) { drawKey(canvas, area.toRect()); };
        keys.push_back(std::move(key));
    }
}

BoxWhiskerLayer::BoxWhiskerLayer(XYChart& chart, std::vector<Numbers> series, Colour fill, Colour whisker,
                                 Colour edge, std::string name)
    : BaseBoxLayer(Kind::BoxWhiskerLayer, chart, std::move(series), fill, std::move(name)),
      m_whisker(orDefault(whisker, kLineColour)) {
    setBorder(orDefault(edge, kLineColour), 0);
}

void BoxWhiskerLayer::setBoxColours(std::vector<Colour> colours, std::vector<std::string> names) {
    m_colours = std::move(colours);
    m_names = std::move(names);
}

Colour BoxWhiskerLayer::fillOf(std::size_t row) const {
    return m_colours.empty() ? set().colour() : orDefault(m_colours[row % m_colours.size()], set().colour());
}

void BoxWhiskerLayer::drawWhisker(Canvas& canvas, const PlotFrame& frame, const Place& place, double from,
                                  double to) const {
    if (!isValue(to) || lineWidth() < 1)
        return;
    const int end = pixel(frame, to);
    const int wing = (place.last - place.first + 1) / 4;
    const QPoint back(frame.depth / 2, -frame.depth / 2); // whiskers stand in the middle of bodies
    const auto line = [&](int x0, int x1, int y0, int y1) {
        const QRect pixels = pixelRect(frame, x0, x1, y0, y1).translated(back);
        canvas.line(pixels.topLeft(), pixels.bottomRight(), m_whisker, lineWidth());
    };
    if (isValue(from))
        line(place.middle, place.middle, pixel(frame, from), end);
    if (wing > 0)
        line(place.middle - wing, place.middle + wing, end, end);
}

void BoxWhiskerLayer::drawRow(Canvas& canvas, const PlotFrame& frame, const Place& place) const {
    const double top = at(Top, place.row), bottom = at(Bottom, place.row), middle = at(Middle, place.row);
    // A whisker begins at the nearer side of the box, or where there is none at the other whisker.
    const double upper = isValue(top) && isValue(bottom) ? std::max(top, bottom)
                         : isValue(top)                  ? top
                                                         : bottom;
    const double lower = isValue(top) && isValue(bottom) ? std::min(top, bottom)
                         : isValue(top)                  ? top
                                                         : bottom;
    const double maximum = at(Maximum, place.row), minimum = at(Minimum, place.row);
    const std::pair<double, double> whiskers[] = {{isValue(upper) ? upper : minimum, maximum},
                                                  {isValue(lower) ? lower : maximum, minimum}};
    // In 3D one of the two stands on the face that is seen.
    for (const auto& [from, to] : whiskers)
        if (!standsOnBody(frame, from, to))
            drawWhisker(canvas, frame, place, from, to);
    if (isValue(top) && isValue(bottom)) {
        BarLook look;
        look.fill = fillOf(place.row);
        look.edge = set().edge(borderColour());
        look.side = orDefault(set().shadow(), look.fill);
        look.sideEdge = orDefault(set().shadowEdge(), look.edge);
        look.effect = borderEffect();
        const int from = pixel(frame, top), to = pixel(frame, bottom);
        look.edgeWidth = edgeWidth(place.last - place.first + 1, std::abs(to - from) + 1);
        look.depth = frame.depth;
        drawBar(canvas, pixelRect(frame, place.first, place.last, from, to), SquareShape, 8, look);
    }
    for (const auto& [from, to] : whiskers)
        if (standsOnBody(frame, from, to))
            drawWhisker(canvas, frame, place, from, to);
    if (isValue(middle)) {
        const int y = pixel(frame, middle);
        const QRect pixels = pixelRect(frame, place.first, place.last, y, y);
        canvas.line(pixels.topLeft(), pixels.bottomRight(), m_whisker, lineWidth());
    }
}

bool BoxWhiskerLayer::labelOf(std::size_t row, double& value,
                              std::vector<std::pair<std::string_view, double>>& fields) const {
    fields = {{"top", at(Top, row)},
              {"bottom", at(Bottom, row)},
              {"max", at(Maximum, row)},
              {"min", at(Minimum, row)},
              {"med", at(Middle, row)}};
    for (const Series series : {Top, Middle, Bottom, Maximum, Minimum})
        if (!isValue(value))
            value = at(series, row);
    return isValue(value);
}

void BoxWhiskerLayer::drawKey(Canvas& canvas, const QRect& area) const {
    canvas.box(area, set().colour(), set().edge(borderColour()), borderEffect());
}

void BoxWhiskerLayer::collectKeys(std::vector<LegendKey>& keys) const {
    if (std::all_of(m_names.begin(), m_names.end(), [](const std::string& name) { return name.empty(); })) {
        BaseBoxLayer::collectKeys(keys);
        return;
    }
    for (std::size_t i = 0; i < m_names.size(); ++i)
        if (!m_names[i].empty())
            keys.push_back(boxKey(m_names[i], fillOf(i), set().edge(borderColour())));
}

} // namespace chartdraw
