// The labels and legend keys of a pie: their texts, and drawing them where the layouts say.

#include "engine/data/no_value.h"
#include "engine/pie/label_parts.h"
#include "engine/pie/pie_chart.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLeastWrap = 60;     ///< pixels that a line of a label has at least
constexpr int kMargin = 2;            ///< pixels between labels and the border of the picture
constexpr double kCircleDistance = 6; ///< pixels between rim and label when nothing else is told

/// What the format of a label or key may name.
class SectorFields final : public FieldSource {
public:
    SectorFields(std::string label, double value, double share, std::size_t index)
        : m_label(std::move(label)), m_value(value), m_percent(share * 100), m_index(index) {}

    FieldValue field(std::string_view name) const override {
        if (name == "label" || name == "dataSetName")
            return FieldValue::text(m_label);
        if (name == "value")
            return FieldValue::number(m_value);
        if (name == "percent")
            return FieldValue::number(m_percent);
        if (name == "sector")
            return FieldValue::number(static_cast<double>(m_index));
        return FieldValue::unknown();
    }

private:
    std::string m_label;
    double m_value;
    double m_percent;
    std::size_t m_index;
};

} // namespace

struct PieChart::Label {
    std::size_t sector;
    SectorLabel spot;
    TextBlock text;
};

std::shared_ptr<const FieldSource> PieChart::fieldsOf(std::size_t index, double share) const {
    return std::make_shared<SectorFields>(m_labels[index], m_values[index], share, index);
}

void PieChart::collectKeys(std::vector<LegendKey>& keys) const {
    const std::vector<double> parts = shares(m_values);
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (!m_labels[i].empty()) {
            LegendKey key = boxKey({}, fillOf(i), kTransparent);
            key.fields = fieldsOf(i, parts[i]);
            keys.push_back(std::move(key));
        }
    }
}

double PieChart::labelDistance(const PieBody& body) const {
    if (m_inColumns)
        return m_labelDistance >= 0 ? m_labelDistance : std::max(18.0, body.radius / 6);
    return m_labelDistance == -1 ? kCircleDistance : m_labelDistance;
}

int PieChart::widthBeside(const PieBody& body, QPointF about, double angle) const {
    const double side = direction(angle).x();
    double room = width() * 0.4;
    if (m_inColumns || std::abs(side) > 0.5) {
        const double rim = about.x() + (side < 0 ? -body.radius : body.radius);
        const double beside = side < 0 ? rim : width() - rim;
        room = std::min(room, beside - std::max(0.0, labelDistance(body)) - kMargin);
    }
    return static_cast<int>(std::max(kLeastWrap, room));
}

std::vector<PieChart::Label> PieChart::makeLabels(const PieBody& body, std::span<const double> shares,
                                                  std::span<const SectorSpan> spans) const {
    std::vector<SectorLabel> weights(shares.size());
    for (std::size_t i = 0; i < shares.size(); ++i)
        weights[i].weight = shares[i];
    TextLook look = m_labelStyle->look();
    const bool wraps = look.wrapWidth == 0 && look.angle == 0 && !look.vertical;
    std::vector<Label> labels;
    for (std::size_t i : heaviest(weights, kMostLabels)) {
        if (!isValue(m_values[i]) || m_values[i] < 0)
            continue;
        const std::string text = m_format.apply(*fieldsOf(i, shares[i]));
        if (text.find_first_not_of(" \t\r\n") == std::string::npos)
            continue;
        const double angle = spans[i].middle();
        const QPointF about = centreOf(body, i, spans[i]);
        if (wraps)
            look.wrapWidth = widthBeside(body, about, angle);
        TextBlock block(look, text, fonts());
        if (block.empty())
            continue;
        const QPointF lowered =
            body.depth * body.facing(angle); // in front, the label stays clear of the wall
        const SectorLabel spot{angle,
                               about + lowered,
                               body.radius,
                               body.radius * body.flatness,
                               body.at(about, angle, body.radius) + lowered,
                               QSizeF(block.size()),
                               shares[i]};
        labels.push_back({i, spot, std::move(block)});
    }
    return labels;
}

void PieChart::drawLabels(Canvas& canvas, const PieBody& body, std::span<const double> shares,
                          std::span<const SectorSpan> spans) const {
    const std::vector<Label> labels = makeLabels(body, shares, spans);
    std::vector<SectorLabel> spots;
    for (const Label& label : labels)
        spots.push_back(label.spot);
    QRectF room = QRectF(0, 0, width(), height()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
    std::vector<PlacedLabel> placed;
    if (m_inColumns) {
        room.setTop(m_labelTop >= 0 ? m_labelTop : room.top());
        room.setBottom(m_labelBottom >= 0 ? m_labelBottom : room.bottom());
        placed = sideLayout(spots, room, labelDistance(body));
    } else {
        placed = circleLayout(spots, room, labelDistance(body));
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const Sector* style = styleOf(labels[i].sector);
        const Colour line = orDefault(style != nullptr ? style->joinLine() : kDefaultColour, m_joinLine);
        if (placed[i].join.size() > 1)
            canvas.polyline(placed[i].join, line, 1);
    }
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (placed[i].shown) {
            const QPointF corner(std::floor(placed[i].box.left()), std::floor(placed[i].box.top()));
            labels[i].text.drawAt(canvas, corner, TopLeft);
        }
    }
}

} // namespace chartdraw
