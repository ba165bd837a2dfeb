#pragma once
// The legend: keys of the chart's named data sets or sectors, keys added by hand, laid out in a row that
// wraps or in a column.

#include "engine/chart/draw_obj.h"

#include <functional>
#include <memory>
#include <vector>

namespace chartdraw {

class DrawArea;
class FieldSource;

/// One entry. The text is made by the legend's format from `fields`, or is `text` as it stands.
struct LegendKey {
    /// Draws the sample of the series into a rectangle of whole pixels (about an em high, wider for lines).
    std::function<void(Canvas& canvas, const QRectF& area)> drawSymbol;
    /// What a format may name. `dataSetName` is always there; a key without a name is not shown.
    std::shared_ptr<const FieldSource> fields;
    std::string text;  ///< used when there are no fields
    bool wide = false; ///< lines want a wider symbol than fills do
};

/// Ready-made symbols.
LegendKey boxKey(std::string name, Colour fill, Colour edge);
/// A line of `width` pixels; `drawMark`, if any, draws the data symbol in its middle.
LegendKey lineKey(std::string name, Colour colour, double width,
                  std::function<void(Canvas&, QPointF)> drawMark = {});
/// The field source of a key that only has a name.
std::shared_ptr<const FieldSource> nameOnly(std::string name);

class LegendBox : public TextBox {
public:
    static constexpr Kind kKind = Kind::LegendBox;

    explicit LegendBox(Chart& chart);

    /// Places and styles the legend.
    void show(QPoint at, bool vertical, const TextLook& look);

    /// A key by hand, behind the automatic ones. Width 0 draws a filled box, more a line. The picture of
    /// `symbol` is copied; null: none.
    void addKey(std::string text, Colour colour, int lineWidth, const DrawArea* symbol);

    /// The keys laid out for one picture; null without any.
    struct Plan;
    std::shared_ptr<const Plan> plan() const;
    QRect boxOf(const Plan& plan) const;
    void draw(Canvas& canvas, const Plan& plan) const;
    int measuredHeight() const override;

private:
    struct OwnKey {
        std::string text;
        Colour colour; ///< kDefaultColour: the series colour that comes next
        int lineWidth;
        QImage symbol;
    };
    struct Placed;
    static LegendKey keyOf(const OwnKey& own, Colour next);
    QSize placeKeys(Plan& plan, int available, int between) const;

    bool m_vertical = false;
    std::vector<OwnKey> m_keys;
};

} // namespace chartdraw
