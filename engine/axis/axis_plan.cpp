#include "engine/axis/axis_plan.h"

#include "engine/axis/label_fit.h"
#include "engine/axis/row_ticks.h"
#include "engine/chart/chart.h"
#include "engine/scale/short_labels.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

using Type = ScaleSettings::Type;

constexpr int kAttempts = 6;
constexpr double kLevelSpacing = 40; // pixels between ticks of a level axis
constexpr double kDateSpacing = 28;  // the same for dates, whose labels are short and whose steps are coarse
constexpr double kLinesByFactor = 8; // of labels on an axis that is long enough to show a factor beside them
constexpr double kLabelBorder = 4;   // pixels that grouped numbers keep from the border of the picture
constexpr double kLogMinors = 3;     // least pixels between minor ticks of log axes
constexpr double kUprightSpacing = 26; // and of an upright one

class Planner {
public:
    Planner(const Axis& axis, const AxisRequest& request)
        : m_axis(axis), m_request(request), m_look(axis.labelBox().look()),
          m_fit(m_look, axis.chart().fonts(), request.upright), m_copies(copiesRoot()),
          m_content(content(axis, m_copies ? request.root : nullptr)) {}

    AxisPlan plan() const {
        const bool numbered = m_content.labels.empty() && m_axis.ticks().majorStep == 1 &&
                              m_axis.ticks().majorOffset == 0 && m_axis.ticks().minorStep == 0;
        return rows() && !numbered ? rowPlan() : numericPlan();
    }

private:
    static RowContent content(const Axis& axis, const Axis* copied) {
        const ScaleSettings& labels = copied != nullptr ? copied->scale() : axis.scale();
        const TickSettings& own = axis.ticks();
        RowContent result;
        if (labels.type == Type::Labels) {
            result.labels = labels.labels;
            result.rowFormat = labels.rowFormat;
        }
        const bool useCopied = copied != nullptr;
        result.format = useCopied && own.labelFormat.empty() ? copied->ticks().labelFormat : own.labelFormat;
        result.rules = useCopied && own.rules.empty() ? copied->ticks().rules : own.rules;
        return result;
    }

    bool copiesRoot() const {
        return m_request.root != nullptr && m_request.slope == 1 && m_request.intercept == 0;
    }

    bool rows() const {
        if (m_request.root != nullptr)
            return m_copies && m_request.rootScale.kind() == ScaleKind::Enumerated;
        return showsRows(m_axis, m_request.rowCount);
    }

    const ScaleSettings& settings() const { return m_axis.scale(); }

    /// The scale in this axis's own values.
    Scale ownScale(const Density& density) const {
        if (m_request.root != nullptr)
            return tiedScale();
        if (rows()) {
            const bool indent = settings().indent == ScaleSettings::Indent::AsLayersNeed
                                    ? m_request.indent
                                    : settings().indent == ScaleSettings::Indent::Yes;
            return Scale::items(m_request.rowCount, indent);
        }
        AutoScale options = settings().automatic;
        options.includeZero = m_request.includeZero;
        options.symmetric = m_request.symmetric;
        DataRange data = m_request.data;
        const DataRange& whole = m_request.whole;
        if (!whole.empty) {
            if (data.empty || data.max <= whole.max)
                options.topExtension = 0;
            if (data.empty || data.min >= whole.min)
                options.bottomExtension = 0;
            data.add(whole);
        }
        const bool given = settings().limitsGiven;
        const double lower = settings().lower, upper = settings().upper;
        switch (settings().type) {
        case Type::Log:
            return given ? Scale::log(lower, upper) : autoLogScale(data, options, density);
        case Type::Date:
            return given ? Scale::date(lower, upper) : autoDateScale(data, options);
        default:
            return given ? Scale::linear(lower, upper) : autoLinearScale(data, options, density);
        }
    }

    Scale tiedScale() const {
        const Scale& root = m_request.rootScale;
        const double lower = root.lower() * m_request.slope + m_request.intercept;
        const double upper = root.upper() * m_request.slope + m_request.intercept;
        if (m_copies)
            return root;
        return root.kind() == ScaleKind::Log && m_request.intercept == 0 && m_request.slope > 0
                   ? Scale::log(lower, upper)
                   : Scale::linear(lower, upper);
    }

    AxisPlan emptyPlan(const Scale& own) const {
        AxisPlan plan;
        plan.scale = m_request.root != nullptr ? m_request.rootScale : own;
        plan.slope = m_request.slope;
        plan.intercept = m_request.intercept;
        return plan;
    }

    double firstSpacing() const {
        if (settings().majorSpacing > 0)
            return settings().majorSpacing;
        // A level axis starts dense: what its labels want in breadth is found by looking at them. Rows are
        // worth a label each where it fits.
        const double level = settings().type == Type::Date ? kDateSpacing : kLevelSpacing;
        // On a short one steps that are too coarse would leave half of it empty.
        const double upright =
            std::max(std::min(kUprightSpacing, m_request.length / 4), 1.6 * m_fit.lineHeight());
        const double spacing = m_request.upright ? upright : level;
        return rows() ? spacing / 2 : spacing;
    }

    double minorSpacing() const {
        const bool automatic = settings().minorSpacing < 0;
        return automatic ? (settings().type == Type::Log ? kLogMinors : 0) : settings().minorSpacing;
    }

    AxisPlan numericPlan() const {
        Density density{.lengthPx = m_request.length, .majorPx = firstSpacing(), .minorPx = minorSpacing()};
        for (int attempt = 1;; ++attempt) {
            const Scale own = ownScale(density);
            AxisPlan plan = emptyPlan(own);
            Ticks ticks = makeTicks(own, settings().increments, density);
            std::vector<int> ranks = addMajor(plan, ticks, own);
            const auto relabel = [&](const std::vector<std::string>& texts) {
                for (std::size_t i = 0; i < texts.size(); ++i)
                    ticks.major[i].label = texts[i];
                plan.ticks.clear();
                ranks = addMajor(plan, ticks, own);
            };
            if (own.kind() == ScaleKind::Linear) {
                if (isTooWide(plan)) {
                    ShortLabels labels =
                        shortLabels(valuesOf(ticks), own.upper() - own.lower(),
                                    plainLabels() && m_request.length > kLinesByFactor * m_fit.lineHeight());
                    relabel(labels.texts);
                    plan.factor = std::move(labels.factor);
                } else if (plainLabels()) {
                    group(plan, ticks, relabel);
                }
            } else if (own.kind() == ScaleKind::Date && isTooWide(plan)) {
                const LabelMaker maker(m_axis, m_content);
                for (PlannedTick& tick : plan.ticks)
                    maker.wrap(tick, m_fit, m_request.labelRoom);
            }
            const AxisMap map = plan.map(0, m_request.length);
            const double wanted = m_fit.wantedDistance(plan.ticks, map);
            const bool fixed = settings().increments.major > 0 || plan.ticks.size() < 3;
            if (wanted == 0 || fixed || attempt == kAttempts) {
                m_fit.thin(plan.ticks, map, ranks);
                for (const double value : ticks.minor)
                    plan.ticks.push_back({.value = value, .major = false, .text = {}, .label = {}});
                return plan;
            }
            density.majorPx = std::max(wanted, density.majorPx * 1.25);
        }
    }

    bool isTooWide(const AxisPlan& plan, double spare = 0) const {
        return m_request.labelRoom > 0 && m_fit.reachesByLength() &&
               m_fit.widest(plan.ticks) + spare > m_request.labelRoom;
    }

    /// Nothing is said of how numbers are to be written.
    bool plainLabels() const { return m_content.format.empty() && !hasRules(m_content.rules); }

    static std::vector<double> valuesOf(const Ticks& ticks) {
        std::vector<double> values;
        for (const Tick& tick : ticks.major)
            values.push_back(tick.value);
        return values;
    }

    /// Groups the thousands of long numbers, where that costs no label its room.
    template <class Relabel>
    void group(AxisPlan& plan, const Ticks& ticks, const Relabel& relabel) const {
        const std::vector<std::string> texts = groupedLabels(valuesOf(ticks));
        if (texts.empty())
            return;
        std::vector<std::string> before;
        for (const Tick& tick : ticks.major)
            before.push_back(tick.label);
        const auto wanted = [&] { return m_fit.wantedDistance(plan.ticks, plan.map(0, m_request.length)); };
        const bool fitted = wanted() == 0;
        relabel(texts);
        if (isTooWide(plan, kLabelBorder) || (fitted && wanted() > 0))
            relabel(before);
    }

    /// Adds the major ticks with their labels; gives the ranks of the labels where rules chose them.
    std::vector<int> addMajor(AxisPlan& plan, const Ticks& ticks, const Scale& own) const {
        if (own.kind() == ScaleKind::Date && hasRules(m_content.rules)) {
            std::vector<double> times;
            std::vector<std::string> shown;
            for (const Tick& tick : ticks.major) {
                times.push_back(tick.value);
                shown.push_back(tick.label);
            }
            const LabelMaker maker(m_axis, m_content);
            std::vector<int> ranks;
            for (const PickedLabel& picked : maker.pick(times, 0, static_cast<int>(times.size()))) {
                const auto index = static_cast<std::size_t>(picked.index);
                plan.ticks.push_back(maker.tick(times[index], times[index], shown[index], picked.rule));
                ranks.push_back(picked.rule);
            }
            return ranks;
        }
        const LabelMaker maker(m_axis, m_content);
        for (const Tick& tick : ticks.major)
            plan.ticks.push_back(maker.tick(tick.value, tick.value, tick.label, PickedLabel::kAxisFormat));
        return {};
    }

    AxisPlan rowPlan() const {
        AxisPlan plan = emptyPlan(ownScale({}));
        const AxisMap map = plan.map(0, m_request.length);
        const LabelMaker maker(m_axis, m_content);
        addRowTicks(plan.ticks, maker, {m_request.firstRow, m_request.rowCount}, map, m_fit,
                    m_request.labelRoom);
        return plan;
    }

    const Axis& m_axis;
    const AxisRequest& m_request;
    const TextLook& m_look;
    LabelFit m_fit;
    bool m_copies; ///< shows just what the root shows
    RowContent m_content;
};

} // namespace

AxisMap AxisPlan::map(double lowerPixel, double upperPixel) const {
    const AxisMap own(scale, lowerPixel, upperPixel);
    return slope == 1 && intercept == 0 ? own : own.tied(slope, intercept);
}

bool showsRows(const Axis& axis, int rowCount) {
    const ScaleSettings& scale = axis.scale();
    return scale.type == Type::Labels || (scale.type == Type::Automatic && rowCount > 0);
}

AxisPlan planAxis(const Axis& axis, const AxisRequest& request) {
    return Planner(axis, request).plan();
}

} // namespace chartdraw
