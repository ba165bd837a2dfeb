#pragma once
// An axis: what scale it has and how it looks, and nothing of where it stands. XY charts stand it along a
// side of the plot area, polar charts on a radius. axis_plan.h turns it and the data's range into limits,
// ticks and labels; axis_layout.h gives these their pixels and draws them.

#include "engine/axis/mark.h"
#include "engine/chart/draw_obj.h"
#include "engine/scale/auto_scale.h"
#include "engine/scale/ticks.h"

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

/// Along which of the chart's two directions values run.
enum class Direction : bool { X, Y };

/// Which scale an axis is to have. A plain value.
struct ScaleSettings {
    enum class Type : unsigned char {
        Automatic, ///< rows where the data has no x values of its own, else linear
        Linear,
        Log,
        Date,
        Labels, ///< rows with a label each
    };
    Type type = Type::Automatic;
    bool limitsGiven = false; ///< else from the data
    double lower = 0, upper = 0;
    Increments increments;
    AutoScale automatic;
    std::vector<double> labels; ///< of Type::Labels: a value a row, before trimming
    std::string rowFormat;      ///< of Type::Labels: how these values are shown
    bool reverse = false;
    int marginTop = 0, marginBottom = 0; ///< pixels free at the upper and the lower end of the scale
    enum class Indent : unsigned char { AsLayersNeed, No, Yes } indent = Indent::AsLayersNeed;
    int majorSpacing = 0;  ///< pixels, 0 automatic
    int minorSpacing = -1; ///< pixels, 0 none, -1 automatic: only log scales have minor ticks
};

/// A rule of CAxis_setMultiFormat: labels that pass `filter` are shown by `format`.
struct FormatRule {
    int filter = 0; ///< as encoded by encodeFilter
    std::string format;
    int labelSpan = 1;
    bool promoteFirst = false;
};

struct TickSettings {
    int majorStep = 1, minorStep = 0;     ///< rows from tick to tick; no minor ticks with 0
    int majorOffset = 0, minorOffset = 0; ///< rows before the first one
    int majorLength = 4, minorLength = 2; ///< pixels, negative inwards
    std::string labelFormat;              ///< empty: values with the decimals of their step
    std::vector<FormatRule> rules;
};

struct Zone {
    double start = 0, end = 0;
    Colour colour = kTransparent;
};

class Axis : public Part {
public:
    static constexpr Kind kKind = Kind::Axis;

    Axis(Chart& chart, Direction direction);

    Direction direction() const { return m_direction; }

    void setReverse(bool reverse);
    void setWidth(int pixels);
    void setColours(Colour axis, Colour label, Colour title, Colour tick);
    void setMargin(int top, int bottom);
    void setIndent(bool indent);
    void setLabelStep(int major, int minor, int majorOffset, int minorOffset);
    void setTickLength(int major, int minor);
    void setTickDensity(int majorSpacing, int minorSpacing);

    void setAutoScale(double topExtension, double bottomExtension, double zeroAffinity);
    /// Limits and increments of a Linear or Date scale; automatic where the limits are equal or no numbers.
    void setLimits(ScaleSettings::Type type, double lower, double upper, const Increments& increments);
    /// A Linear or Log scale from the data; an empty format keeps the one in force.
    void setScaleFromData(ScaleSettings::Type type, std::string format);
    TextBox* setLabels(std::vector<double> values, std::string format);
    void setRules(std::vector<FormatRule> rules);
    void addRule(FormatRule rule);
    void setLabelFormat(std::string format);
    /// The look of all labels. A colour of -1 keeps the one in force; an empty font, a size of 0 the default.
    TextBox* setLabelStyle(std::string font, double size, Colour colour, double angle);
    TextBox* setTitle(std::string text, std::string font, double size, Colour colour);
    void setTitlePos(int alignment, int gap);

    Mark* addMark(double value, Colour colour, std::string label, const TextLook& look);
    void addZone(double start, double end, Colour colour);

    /// Scale, labels, ticks and looks; not title, marks, zones and, across charts, the tie to another axis.
    void copyFrom(const Axis& source);
    /// Ties the scale to another axis of the same chart: value here = slope * value there + intercept.
    /// Ignored with a slope of 0, numbers that are none, an axis of another chart.
    void syncTo(const Axis* other, double slope, double intercept);

    const ScaleSettings& scale() const { return m_scale; }
    const TickSettings& ticks() const { return m_ticks; }
    int width() const { return m_width; }
    Colour colour() const { return m_colour; }
    Colour tickColour() const { return orDefault(m_tickColour, m_colour); }
    const TextBox& labelBox() const { return *m_labelBox; }
    const TextBox& title() const { return *m_title; }
    /// The title's look as it is drawn beside an axis that is upright or not. The title of a y axis begins at
    /// 90 degrees; an angle that nobody changed follows the axis when x and y are exchanged.
    TextLook titleLook(bool upright) const;
    int titleAlignment() const { return m_titleAlignment; }
    int titleGap() const { return m_titleGap; }
    const std::vector<Mark*>& marks() const { return m_marks; }
    const std::vector<Zone>& zones() const { return m_zones; }

    /// The axis that this one follows, directly, or null.
    const Axis* syncedTo() const { return m_syncedTo; }
    double syncSlope() const { return m_syncSlope; }
    double syncIntercept() const { return m_syncIntercept; }

private:
    Direction m_direction;
    ScaleSettings m_scale;
    TickSettings m_ticks;
    int m_width = 1;
    Colour m_colour = kLineColour;
    Colour m_tickColour = kDefaultColour; ///< as the axis
    TextBox* m_labelBox;
    TextBox* m_title;
    int m_titleAlignment = Center;
    int m_titleGap = 6;
    std::vector<Mark*> m_marks;
    std::vector<Zone> m_zones;
    const Axis* m_syncedTo = nullptr;
    double m_syncSlope = 1, m_syncIntercept = 0;
};

} // namespace chartdraw
