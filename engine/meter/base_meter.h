#pragma once
// What both meters are: a scale with ticks of three sizes and labels, and pointers over everything else. The
// kinds say where the scale runs.

#include "engine/chart/chart.h"
#include "engine/meter/meter_pointer.h"
#include "engine/scale/scale.h"
#include "engine/scale/ticks.h"

#include <QRectF>
#include <array>
#include <optional>
#include <vector>

namespace chartdraw {

class BaseMeter : public Chart {
public:
    static constexpr Kind kKind = Kind::BaseMeter;

    /// 0 to 100 where the limits are equal or no numbers.
    void setScale(double lower, double upper, const Increments& increments);
    TextBox* setLabelStyle(const TextLook& look);
    /// Pixels; 0 or below draws none.
    void setLineWidths(int axis, int major, int minor, int micro);
    MeterPointer* addPointer(double value, Colour fill, Colour edge);

protected:
    BaseMeter(Kind kind, int width, int height, Colour background, Colour edge, int effect);

    /// A size of ticks: all of one width and length.
    struct TickSort {
        const std::vector<double>& values;
        double length; ///< as a part of that of the major ticks
        int width;     ///< pixels
    };
    struct Label {
        double value;
        TextBlock text;
    };
    struct Dial {
        Ticks ticks;
        std::vector<double> majors; ///< values of the major ticks
        std::vector<Label> labels;  ///< of the major ticks, ascending
    };

    /// Ticks and labels for a scale of this length in pixels; automatic ones leave room for the labels, which
    /// follow each other `sideBySide` or one above the other.
    Dial dial(double length, bool sideBySide) const;
    /// Small ticks first, so that larger ones cover them.
    std::array<TickSort, 3> tickSorts(const Dial& dial) const;

    /// 0 where the scale begins, at the limit named lower, and 1 where it ends; values beyond the limits are
    /// at the limits. None for what is no number.
    std::optional<double> fraction(double value) const;
    /// Fractions of the ends of a zone in rising order; none where it covers nothing.
    std::optional<std::pair<double, double>> span(double start, double end) const;

    int axisWidth() const { return m_axisWidth; }
    /// Of axis line and ticks: that of the labels, so that a scale reads on a dark ground as well.
    Colour scaleColour() const;
    /// What the pointers cover.
    std::vector<QRectF> pointerBounds() const;
    /// Far enough outside any picture, so that sums cannot overflow.
    static int limited(int pixels);

    virtual QPainterPath outlineOf(const MeterPointer& pointer, double fraction) const = 0;
    void drawTop(Canvas& canvas) override;

private:
    /// Gives all labels a shorter form, if there is one.
    void shorten(Ticks& ticks) const;

    Scale m_scale = Scale::linear(0, 100);
    bool m_falling = false; ///< the scale begins at its upper limit
    Increments m_increments;
    TextBox* m_labelStyle;
    int m_axisWidth = 0, m_majorWidth = 1, m_minorWidth = 1, m_microWidth = 1;
    std::vector<MeterPointer*> m_pointers;
};

/// Fills a shape; an edge of the default colour follows the fill, so that shapes side by side show no seam.
void fillZone(Canvas& canvas, const QPainterPath& path, Colour fill, Colour edge);

} // namespace chartdraw
