#include "engine/meter/base_meter.h"

#include "engine/data/no_value.h"
#include "engine/paint/picture.h"
#include "engine/scale/short_labels.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr int kWidest = 1000;        ///< pixels of a line
constexpr double kUsualSpacing = 32; ///< pixels between automatic major ticks
constexpr int kLabelMargin = 2;      ///< pixels beside a label, seen where it has a background

constexpr std::size_t kMostDigits = 6; ///< of a label; longer numbers take a shorter form

bool isOpaque(Colour colour) {
    return colour < 0x01000000;
}

} // namespace

void fillZone(Canvas& canvas, const QPainterPath& path, Colour fill, Colour edge) {
    canvas.fillPath(path, fill);
    // A second layer of a colour that shows through would be seen as a darker edge.
    if (edge != kDefaultColour || isOpaque(fill))
        canvas.strokePath(path, orDefault(edge, fill), 1);
}

BaseMeter::BaseMeter(Kind kind, int width, int height, Colour background, Colour edge, int effect)
    : Chart(kind, width, height, background, edge, effect) {
    m_labelStyle = own<TextBox>(*this);
    setLabelStyle({});
}

int BaseMeter::limited(int pixels) {
    return std::clamp(pixels, -2 * kMaxSide, 2 * kMaxSide);
}

void BaseMeter::setScale(double lower, double upper, const Increments& increments) {
    const bool usable = isValue(lower) && isValue(upper) && lower != upper;
    m_scale = usable ? Scale::linear(lower, upper) : Scale::linear(0, 100);
    m_falling = usable && lower > upper;
    m_increments = increments;
}

TextBox* BaseMeter::setLabelStyle(const TextLook& look) {
    m_labelStyle->look() = look;
    m_labelStyle->look().setMargins(kLabelMargin, kLabelMargin, 0, 0);
    return m_labelStyle;
}

void BaseMeter::setLineWidths(int axis, int major, int minor, int micro) {
    const auto width = [](int pixels) { return std::clamp(pixels, 0, kWidest); };
    m_axisWidth = width(axis);
    m_majorWidth = width(major);
    m_minorWidth = width(minor);
    m_microWidth = width(micro);
}

MeterPointer* BaseMeter::addPointer(double value, Colour fill, Colour edge) {
    const Colour colour = orDefault(fill, kLineColour);
    m_pointers.push_back(own<MeterPointer>(*this, value, colour, orDefault(edge, colour)));
    return m_pointers.back();
}

void BaseMeter::shorten(Ticks& ticks) const {
    std::vector<double> values;
    for (const Tick& tick : ticks.major)
        values.push_back(tick.value);
    const ShortLabels labels = shortLabels(values, m_scale.upper() - m_scale.lower());
    for (std::size_t i = 0; i < values.size(); ++i)
        ticks.major[i].label = labels.texts[i];
}

BaseMeter::Dial BaseMeter::dial(double length, bool sideBySide) const {
    const auto label = [this](const Tick& tick) { return m_labelStyle->block(tick.label); };
    const auto ticksAt = [&](double spacing) {
        Ticks ticks = linearTicks(m_scale, m_increments, {.lengthPx = length, .majorPx = spacing});
        const bool manyDigits = std::any_of(ticks.major.begin(), ticks.major.end(),
                                            [](const Tick& tick) { return tick.label.size() > kMostDigits; });
        if (manyDigits)
            shorten(ticks);
        return ticks;
    };
    Dial dial;
    dial.ticks = ticksAt(kUsualSpacing);
    if (!(m_increments.major > 0) && !dial.ticks.major.empty()) {
        double wanted = kUsualSpacing;
        for (const Tick* tick : {&dial.ticks.major.front(), &dial.ticks.major.back()}) {
            const QSize size = label(*tick).size();
            wanted = std::max(wanted, 1.3 * (sideBySide ? size.width() : size.height()));
        }
        dial.ticks = ticksAt(wanted);
    }
    for (const Tick& tick : dial.ticks.major) {
        dial.majors.push_back(tick.value);
        if (TextBlock text = label(tick); !text.empty())
            dial.labels.push_back({tick.value, std::move(text)});
    }
    return dial;
}

std::array<BaseMeter::TickSort, 3> BaseMeter::tickSorts(const Dial& dial) const {
    return {{{dial.ticks.micro, 0.4, m_microWidth},
             {dial.ticks.minor, 0.65, m_minorWidth},
             {dial.majors, 1, m_majorWidth}}};
}

std::optional<double> BaseMeter::fraction(double value) const {
    if (std::isnan(value) || value == kNoValue)
        return std::nullopt;
    const double rising = m_scale.fraction(std::clamp(value, m_scale.lower(), m_scale.upper()));
    return m_falling ? 1 - rising : rising;
}

std::optional<std::pair<double, double>> BaseMeter::span(double start, double end) const {
    const std::optional<double> from = fraction(start), to = fraction(end);
    if (!from || !to || *from == *to)
        return std::nullopt;
    return std::minmax(*from, *to);
}

Colour BaseMeter::scaleColour() const {
    const Colour labels = m_labelStyle->look().colour;
    return colours().invisible(labels) ? kLineColour : labels;
}

std::vector<QRectF> BaseMeter::pointerBounds() const {
    std::vector<QRectF> bounds;
    for (const MeterPointer* pointer : m_pointers)
        if (const std::optional<double> at = fraction(pointer->value()))
            bounds.push_back(outlineOf(*pointer, *at).boundingRect());
    return bounds;
}

void BaseMeter::drawTop(Canvas& canvas) {
    for (const MeterPointer* pointer : m_pointers) {
        if (const std::optional<double> at = fraction(pointer->value())) {
            const QPainterPath outline = outlineOf(*pointer, *at);
            canvas.fillPath(outline, pointer->fill());
            if (pointer->edge() != pointer->fill())
                canvas.strokePath(outline, pointer->edge(), 1);
        }
    }
}

} // namespace chartdraw
