#pragma once
// The round axis of a polar chart: which values or texts stand around the circle, and how they look. The
// chart draws it.

#include "engine/chart/draw_obj.h"
#include "engine/scale/scale.h"
#include "engine/scale/ticks.h"

#include <span>
#include <string>
#include <vector>

namespace chartdraw {

/// A spoke with its label.
struct AngularTick {
    double turn = 0; ///< part of the turn, clockwise from the top, 0 up to 1
    std::string label;
};

struct AngularTicks {
    std::vector<AngularTick> spokes;
    std::vector<double> minor; ///< parts of the turn of the marks between them
};

class AngularAxis : public Part {
public:
    static constexpr Kind kKind = Kind::AngularAxis;

    explicit AngularAxis(Chart& chart);

    /// The whole turn goes from lower to upper, clockwise if upper is greater. Limits that are equal or no
    /// numbers are 0 to 360; a major increment not above 0 is found automatically.
    void setLinearScale(double lower, double upper, const Increments& increments);
    /// Texts at even steps from the top; with none the numbers of the scale come back.
    void setLabels(std::vector<std::string> labels);
    TextBox* setLabelStyle(const TextLook& look);
    /// Clockwise from start to end, across the top if need be.
    void addZone(double start, double end, Colour fill, Colour edge);

    struct Zone {
        double start, end;
        Colour fill, edge;
    };
    const std::vector<Zone>& zones() const { return m_zones; }
    const TextBox& labelBox() const { return *m_labelBox; }
    const std::vector<std::string>& labels() const { return m_labels; }

    /// The part of the turn at which a value stands, from 0 up to 1; values beyond the scale go on round.
    /// NaN for what is no number.
    double turn(double value) const;
    /// The values of `count` even steps from the beginning of the scale; with labels, of as many steps as
    /// there are labels.
    std::vector<double> evenSteps(std::size_t count) const;
    /// The part of the turn at which a zone begins and the part that it covers, 0 to 1.
    std::pair<double, double> zoneTurns(const Zone& zone) const;

    /// For a circle of this length in pixels.
    AngularTicks ticks(double circumference) const;

private:
    Scale m_scale = Scale::linear(0, 360);
    bool m_falling = false;
    Increments m_increments;
    std::vector<std::string> m_labels;
    TextBox* m_labelBox;
    std::vector<Zone> m_zones;
};

} // namespace chartdraw
