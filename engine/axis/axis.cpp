#include "engine/axis/axis.h"

#include "engine/chart/chart.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

namespace chartdraw {

namespace {

constexpr int kMostPixels = 16384;
constexpr int kMostRows = 1'000'000'000;

int limited(int pixels, int least = 0) {
    return std::clamp(pixels, least, kMostPixels);
}

double part(double value, double fallback) {
    return std::isfinite(value) ? std::clamp(value, 0.0, 1.0) : fallback;
}

void setFont(TextLook& look, std::string font, double size, double fallbackSize) {
    look.font = std::move(font);
    look.size = size > 0 && size <= kMaxFontSize ? size : fallbackSize;
    look.widthSize = 0;
}

double naturalAngle(bool upright) {
    return upright ? 90 : 0;
}

} // namespace

Axis::Axis(Chart& chart, Direction direction)
    : Part(Kind::Axis, chart), m_direction(direction), m_labelBox(chart.own<TextBox>(chart)),
      m_title(chart.own<TextBox>(chart)) {
    m_title->look().font = "bold";
    m_title->look().angle = naturalAngle(direction == Direction::Y);
}

void Axis::setReverse(bool reverse) {
    m_scale.reverse = reverse;
}

void Axis::setWidth(int pixels) {
    m_width = limited(pixels);
}

void Axis::setColours(Colour axis, Colour label, Colour title, Colour tick) {
    m_colour = orDefault(axis, m_colour);
    m_tickColour = orDefault(tick, m_tickColour);
    m_labelBox->look().colour = orDefault(label, m_labelBox->look().colour);
    m_title->look().colour = orDefault(title, m_title->look().colour);
}

void Axis::setMargin(int top, int bottom) {
    m_scale.marginTop = limited(top);
    m_scale.marginBottom = limited(bottom);
}

void Axis::setIndent(bool indent) {
    m_scale.indent = indent ? ScaleSettings::Indent::Yes : ScaleSettings::Indent::No;
}

void Axis::setLabelStep(int major, int minor, int majorOffset, int minorOffset) {
    m_ticks.majorStep = std::clamp(major, 1, kMostRows);
    m_ticks.minorStep = std::clamp(minor, 0, kMostRows);
    m_ticks.majorOffset = std::clamp(majorOffset, 0, kMostRows);
    m_ticks.minorOffset = std::clamp(minorOffset, 0, kMostRows);
}

void Axis::setTickLength(int major, int minor) {
    m_ticks.majorLength = limited(major, -kMostPixels);
    m_ticks.minorLength = limited(minor, -kMostPixels);
}

void Axis::setTickDensity(int majorSpacing, int minorSpacing) {
    m_scale.majorSpacing = limited(majorSpacing);
    m_scale.minorSpacing = minorSpacing < 1 ? 0 : limited(minorSpacing);
}

void Axis::setAutoScale(double topExtension, double bottomExtension, double zeroAffinity) {
    const AutoScale defaults;
    m_scale.automatic.topExtension = part(topExtension, defaults.topExtension);
    m_scale.automatic.bottomExtension = part(bottomExtension, defaults.bottomExtension);
    m_scale.automatic.zeroAffinity = part(zeroAffinity, defaults.zeroAffinity);
    m_scale.limitsGiven = false;
    m_scale.increments = {};
    if (m_scale.type == ScaleSettings::Type::Linear)
        m_scale.type = ScaleSettings::Type::Automatic;
}

void Axis::setLimits(ScaleSettings::Type type, double lower, double upper, const Increments& increments) {
    m_scale.type = type;
    m_scale.limitsGiven = isValue(lower) && isValue(upper) && lower != upper;
    if (m_scale.limitsGiven)
        std::tie(m_scale.lower, m_scale.upper) = std::minmax(lower, upper);
    m_scale.increments = increments;
}

void Axis::setScaleFromData(ScaleSettings::Type type, std::string format) {
    m_scale.type = type;
    m_scale.limitsGiven = false;
    m_scale.increments = {};
    if (!format.empty())
        m_ticks.labelFormat = std::move(format);
}

TextBox* Axis::setLabels(std::vector<double> values, std::string format) {
    m_scale.type = ScaleSettings::Type::Labels;
    m_scale.labels = std::move(values);
    if (!format.empty())
        m_ticks.labelFormat.clear();
    m_scale.rowFormat = std::move(format);
    return m_labelBox;
}

void Axis::setRules(std::vector<FormatRule> rules) {
    m_ticks.rules = std::move(rules);
}

void Axis::addRule(FormatRule rule) {
    m_ticks.rules.push_back(std::move(rule));
}

void Axis::setLabelFormat(std::string format) {
    m_ticks.labelFormat = std::move(format);
}

TextBox* Axis::setLabelStyle(std::string font, double size, Colour colour, double angle) {
    TextLook& look = m_labelBox->look();
    setFont(look, std::move(font), size, kDefaultFontSize);
    look.colour = orDefault(colour, look.colour);
    look.angle = std::isfinite(angle) ? std::fmod(angle, 360.0) : 0;
    return m_labelBox;
}

TextBox* Axis::setTitle(std::string text, std::string font, double size, Colour colour) {
    m_title->setText(std::move(text));
    TextLook& look = m_title->look();
    setFont(look, font.empty() ? "bold" : std::move(font), size, kDefaultFontSize);
    look.colour = orDefault(colour, look.colour);
    return m_title;
}

void Axis::setTitlePos(int alignment, int gap) {
    m_titleAlignment = alignment;
    m_titleGap = limited(gap, -kMostPixels);
}

Mark* Axis::addMark(double value, Colour colour, std::string label, const TextLook& look) {
    Mark* mark = chart().own<Mark>(chart(), *this, value, colour, std::move(label), look);
    m_marks.push_back(mark);
    return mark;
}

void Axis::addZone(double start, double end, Colour colour) {
    m_zones.push_back({start, end, colour});
}

void Axis::copyFrom(const Axis& source) {
    if (&source == this)
        return;
    m_scale = source.m_scale;
    m_ticks = source.m_ticks;
    m_width = source.m_width;
    m_colour = source.m_colour;
    m_tickColour = source.m_tickColour;
    m_labelBox->look() = source.m_labelBox->look();
    m_syncedTo = nullptr;
    if (source.m_syncedTo != nullptr)
        syncTo(source.m_syncedTo, source.m_syncSlope, source.m_syncIntercept);
}

void Axis::syncTo(const Axis* other, double slope, double intercept) {
    if (other == nullptr || &other->chart() != &chart() || !isValue(slope) || slope == 0 ||
        !isValue(intercept))
        return;
    for (const Axis* link = other; link != nullptr; link = link->m_syncedTo)
        if (link == this)
            return; // the ring would leave no axis to follow
    m_syncedTo = other;
    m_syncSlope = slope;
    m_syncIntercept = intercept;
}

TextLook Axis::titleLook(bool upright) const {
    TextLook look = m_title->look();
    if (look.angle == naturalAngle(m_direction == Direction::Y) && !look.vertical)
        look.angle = naturalAngle(upright);
    return look;
}

} // namespace chartdraw
