#include "engine/axis/row_ticks.h"

#include "engine/chart/chart.h"
#include "engine/data/chart_time.h"
#include "engine/scale/date_text.h"
#include "engine/scale/number_text.h"
#include "engine/text/fitted_text.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

constexpr double kLeastLabelPitch = 4; // pixels; no label of any font is narrower
constexpr double kLeastCutName = 4;    // lines high that a name is wide before it ends in an ellipsis
constexpr double kLeastTickPitch = 5;  // pixels; ticks without labels closer than this are left out

class TickFields final : public FieldSource {
public:
    TickFields(double value, std::string_view shown) : m_value(value), m_shown(shown) {}
    FieldValue field(std::string_view name) const override {
        if (name == "value")
            return FieldValue::number(m_value, m_shown);
        return name == "label" ? FieldValue::text(m_shown) : FieldValue::unknown();
    }

private:
    double m_value;
    std::string_view m_shown;
};

bool doesNothing(const FormatRule& rule) {
    return decodeFilter(rule.filter).type == FilterType::NonePass && rule.format.empty();
}

/// A row that has a tick, before its label is made.
struct Candidate {
    int row;
    int rule;
};

std::vector<Candidate> candidates(const LabelMaker& maker, RowSpan rows) {
    std::vector<Candidate> result;
    const RowContent& content = maker.content();
    if (hasRules(content.rules) && !content.labels.empty()) {
        for (const PickedLabel& picked : maker.pick(content.labels, rows.first, rows.count))
            result.push_back({picked.index - rows.first, picked.rule});
        return result;
    }
    const TickSettings& ticks = maker.axis().ticks();
    for (int row = ticks.majorOffset; row < rows.count; row += std::min(ticks.majorStep, rows.count))
        result.push_back({row, PickedLabel::kAxisFormat});
    return result;
}

/// Takes labels, then ticks, from candidates that stand far too close, so that no more texts are laid out
/// than an axis can show.
void thinCandidates(std::vector<Candidate>& found, double length) {
    const auto labelled = [](const Candidate& c) { return c.rule != PickedLabel::kTickOnly; };
    const auto count = static_cast<double>(std::count_if(found.begin(), found.end(), labelled));
    const auto step =
        static_cast<std::ptrdiff_t>(std::ceil(count * kLeastLabelPitch / std::max(1.0, length)));
    std::ptrdiff_t i = 0;
    for (Candidate& candidate : found)
        if (labelled(candidate) && i++ % std::max<std::ptrdiff_t>(step, 1) != 0)
            candidate.rule = PickedLabel::kTickOnly;
}

} // namespace

bool hasRules(std::span<const FormatRule> rules) {
    return !std::all_of(rules.begin(), rules.end(), doesNothing);
}

RowTexts::RowTexts(std::span<const double> values, std::string_view format)
    : m_values(values), m_format(format) {
    const double from = chartTime(1900, 1, 1), to = chartTime(2200, 1, 1);
    bool wholeDays = true;
    bool any = false;
    for (const double value : values) {
        if (!isValue(value))
            continue;
        if (value < from || value >= to)
            return;
        any = true;
        wholeDays = wholeDays && std::fmod(value, kSecondsPerDay) == 0;
    }
    if (any)
        m_dateSpec = wholeDays ? "yyyy-mm-dd" : "yyyy-mm-dd\nhh:nn";
}

double RowTexts::value(std::size_t row) const {
    return row < m_values.size() ? m_values[row] : static_cast<double>(row);
}

std::string RowTexts::plainText(std::size_t row) const {
    return m_dateSpec.empty() ? numberText(value(row)) : dateText(value(row), m_dateSpec);
}

std::string RowTexts::text(std::size_t row) const {
    if (row >= m_values.size() && !m_values.empty())
        return {};
    return m_format.isEmpty() ? plainText(row) : m_format.apply(TickFields(value(row), plainText(row)));
}

LabelMaker::LabelMaker(const Axis& axis, const RowContent& content)
    : m_axis(axis), m_content(content), m_format(content.format.empty() ? "{value}" : content.format) {
    for (const FormatRule& rule : content.rules) {
        m_ruleFormats.emplace_back(rule.format);
        m_rules.push_back({.filter = decodeFilter(rule.filter),
                           .labelSpan = rule.labelSpan,
                           .promoteFirst = rule.promoteFirst,
                           .tickOnly = rule.format == "-",
                           .emptyFormat = rule.format.empty()});
    }
}

std::vector<PickedLabel> LabelMaker::pick(std::span<const double> times, int first, int count) const {
    return pickLabels(times, first, count, m_rules);
}

PlannedTick LabelMaker::tick(double position, double value, std::string_view shown, int rule) const {
    PlannedTick result;
    result.value = position;
    if (rule == PickedLabel::kTickOnly)
        return result;
    const Format& format = rule >= 0 ? m_ruleFormats[static_cast<std::size_t>(rule)] : m_format;
    if (format.text() == "-")
        return result;
    result.text = format.isEmpty() ? std::string(shown) : format.apply(TickFields(value, shown));
    TextBlock block = m_axis.labelBox().block(result.text);
    if (block.empty())
        result.text.clear();
    else
        result.label = std::move(block);
    return result;
}

bool LabelMaker::wrap(PlannedTick& tick, const LabelFit& fit, double room) const {
    if (!tick.label || !fit.wraps() || fit.reach(*tick.label) <= room)
        return false;
    TextLook look = m_axis.labelBox().look();
    look.wrapWidth = std::max(1, static_cast<int>(room) - look.marginLeft - look.marginRight);
    TextBlock wrapped(look, tick.text, m_axis.chart().fonts());
    const bool fits = fit.reach(wrapped) <= room;
    if (fits)
        tick.label = std::move(wrapped);
    return fits;
}

void LabelMaker::shorten(PlannedTick& tick, const LabelFit& fit, double room, double pitch) const {
    if (room <= 0 || !tick.label || !fit.reachesByLength() || fit.reach(*tick.label) <= room)
        return;
    const double height = tick.label->size().height();
    if (wrap(tick, fit, room)) {
        if (tick.label->size().height() <= std::max(pitch, height))
            return;
        tick.label = m_axis.labelBox().block(tick.text);
    }
    tick.text = cutToFit(
        tick.text, [&](const std::string& part) { return fit.reach(m_axis.labelBox().block(part)) <= room; });
    tick.label = m_axis.labelBox().block(tick.text);
}

void LabelMaker::fitNames(std::vector<PlannedTick>& ticks, const LabelFit& fit, double room,
                          double width) const {
    const QSize most(static_cast<int>(width), static_cast<int>(std::max(room, fit.lineHeight())));
    if (most.width() < 1)
        return;
    TextLook look = m_axis.labelBox().look();
    look.wrapWidth = std::max(1, most.width() - look.marginLeft - look.marginRight);
    const bool mayCut = width >= kLeastCutName * fit.lineHeight();
    std::vector<std::optional<TextBlock>> fitted(ticks.size());
    for (std::size_t i = 0; i < ticks.size(); ++i) {
        if (!ticks[i].label)
            continue;
        const FontSet& fonts = m_axis.chart().fonts();
        fitted[i] =
            mayCut ? fittedText(look, ticks[i].text, fonts, most) : TextBlock(look, ticks[i].text, fonts);
        if (fitted[i]->empty() || fitted[i]->size().width() > most.width() ||
            fitted[i]->size().height() > most.height())
            return;
    }
    for (std::size_t i = 0; i < ticks.size(); ++i)
        if (fitted[i])
            ticks[i].label = std::move(fitted[i]);
}

void addRowTicks(std::vector<PlannedTick>& ticks, const LabelMaker& maker, RowSpan rows, const AxisMap& map,
                 const LabelFit& fit, double room) {
    std::vector<Candidate> found = candidates(maker, rows);
    const double length = std::abs(map.upperPixel() - map.lowerPixel());
    thinCandidates(found, length);
    const RowTexts texts(maker.content().labels, maker.content().rowFormat);
    std::vector<int> ranks;
    const double pitch = length / std::max<double>(1, static_cast<double>(found.size()));
    for (const Candidate& candidate : found) {
        const auto row = static_cast<std::size_t>(rows.first + candidate.row);
        if (candidate.rule == PickedLabel::kTickOnly) {
            if (pitch >= kLeastTickPitch) {
                ticks.push_back(maker.tick(candidate.row, 0, {}, candidate.rule));
                ranks.push_back(candidate.rule);
            }
            continue;
        }
        ticks.push_back(maker.tick(candidate.row, texts.value(row), texts.text(row), candidate.rule));
        ranks.push_back(candidate.rule);
        maker.shorten(ticks.back(), fit, room, pitch);
    }
    const bool names = maker.content().rowFormat.find('\t') != std::string_view::npos;
    if (names && fit.sideBySide() && fit.wantedDistance(ticks, map) > 0)
        maker.fitNames(ticks, fit, room, pitch - fit.gap());
    fit.thin(ticks, map,
             hasRules(maker.content().rules) ? std::span<const int>(ranks) : std::span<const int>());
    if (pitch < kLeastTickPitch)
        std::erase_if(ticks, [](const PlannedTick& tick) { return !tick.label; });

    const TickSettings& settings = maker.axis().ticks();
    const double minorPitch = length * settings.minorStep / std::max(1, rows.count);
    if (settings.minorStep > 0 && minorPitch >= 2) {
        std::vector<bool> taken(static_cast<std::size_t>(rows.count), false);
        for (const PlannedTick& tick : ticks)
            taken[static_cast<std::size_t>(tick.value)] = true;
        for (int row = settings.minorOffset; row < rows.count;
             row += std::min(settings.minorStep, rows.count))
            if (!taken[static_cast<std::size_t>(row)])
                ticks.push_back({.value = static_cast<double>(row), .major = false, .text = {}, .label = {}});
    }
}

} // namespace chartdraw
