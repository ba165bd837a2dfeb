#include "engine/chart/legend.h"

#include "engine/chart/chart.h"
#include "engine/scale/format.h"

#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

class NameSource final : public FieldSource {
public:
    explicit NameSource(std::string name) : m_name(std::move(name)) {}
    FieldValue field(std::string_view name) const override {
        return name == "dataSetName" || name == "label" ? FieldValue::text(m_name) : FieldValue::unknown();
    }

private:
    std::string m_name;
};

} // namespace

std::shared_ptr<const FieldSource> nameOnly(std::string name) {
    return name.empty() ? nullptr : std::make_shared<NameSource>(std::move(name));
}

LegendKey boxKey(std::string name, Colour fill, Colour edge) {
    LegendKey key;
    key.fields = nameOnly(std::move(name));
    key.drawSymbol = [fill, edge](Canvas& canvas, const QRectF& area) {
        canvas.box(area.toRect(), fill, edge, 0);
    };
    return key;
}

LegendKey lineKey(std::string name, Colour colour, double width,
                  std::function<void(Canvas&, QPointF)> drawMark) {
    LegendKey key;
    key.fields = nameOnly(std::move(name));
    key.wide = true;
    key.drawSymbol = [=, mark = std::move(drawMark)](Canvas& canvas, const QRectF& area) {
        const double y = std::floor(area.center().y());
        canvas.line({area.left(), y}, {area.right() - 1, y}, colour, std::min(width, area.height()));
        if (mark)
            mark(canvas, {std::floor(area.center().x()), y});
    };
    return key;
}

/// A key with its text laid out and its place inside the box.
struct LegendBox::Placed {
    const LegendKey* key;
    TextBlock text;
    int symbolWidth;
    QPoint at; ///< upper left corner inside the box's margins
};

struct LegendBox::Plan {
    std::vector<LegendKey> keys; ///< kept alive for `placed`
    std::vector<Placed> placed;
    int lineHeight = 0;
    int symbolHeight = 0;
    int gap = 0; ///< between a symbol and its text
    QSize box;
};

LegendBox::LegendBox(Chart& chart) : TextBox(Kind::LegendBox, chart, "{dataSetName}", {}) {
    setPos(0, 0);
}

void LegendBox::show(QPoint at, bool vertical, const TextLook& look) {
    m_vertical = vertical;
    this->look() = look;
    setPos(at.x(), at.y());
}

void LegendBox::addKey(std::string text, Colour colour, int lineWidth, const DrawArea* symbol) {
    m_keys.push_back({std::move(text), colour, lineWidth, symbol != nullptr ? symbol->image() : QImage()});
}

LegendKey LegendBox::keyOf(const OwnKey& own, Colour next) {
    LegendKey key;
    if (!own.symbol.isNull()) {
        key.drawSymbol = [image = own.symbol](Canvas& canvas, const QRectF& area) {
            const QSize fit = image.size().scaled(area.size().toSize(), Qt::KeepAspectRatio);
            const QPointF corner = area.center() - QPointF(fit.width() / 2.0, fit.height() / 2.0);
            canvas.painter().drawImage(QRectF(corner, fit), image);
        };
    } else if (own.lineWidth > 0) {
        key = lineKey({}, orDefault(own.colour, next), own.lineWidth);
    } else {
        key = boxKey({}, orDefault(own.colour, next), kTransparent);
    }
    key.text = own.text;
    return key;
}

LegendBox::Plan LegendBox::plan() const {
    Plan plan;
    chart().collectKeys(plan.keys);
    std::erase_if(plan.keys, [](const LegendKey& key) { return key.fields == nullptr && key.text.empty(); });
    for (const OwnKey& own : m_keys)
        plan.keys.push_back(keyOf(own, seriesColour(static_cast<int>(plan.keys.size()))));

    TextLook bare = look();
    bare.setMargins(0, 0, 0, 0);
    bare.width = bare.height = 0;
    bare.background = bare.edge = kTransparent;
    bare.effect = 0;
    bare.alignment = Left;

    const int em = TextBlock(bare, "X", chart().fonts()).boxSize().height();
    plan.symbolHeight = std::max(5, em * 2 / 3);
    plan.gap = std::max(3, em / 3);
    const bool anyWide = std::any_of(plan.keys.begin(), plan.keys.end(), [](auto& key) { return key.wide; });
    const Format format(text());
    plan.placed.reserve(plan.keys.size());
    for (const LegendKey& key : plan.keys) {
        TextBlock block(bare, key.fields ? format.apply(*key.fields) : key.text, chart().fonts());
        plan.lineHeight = std::max({plan.lineHeight, block.size().height(), plan.symbolHeight});
        // In a column all texts start at one edge; in a row each symbol is as wide as it needs.
        const bool wide = m_vertical ? anyWide : key.wide;
        plan.placed.push_back({&key, std::move(block), wide ? em * 3 / 2 : plan.symbolHeight, {}});
    }

    const int available = (look().width > 0 ? look().width : chart().width() - pos()->x()) -
                          look().marginLeft - look().marginRight;
    const int between = em;
    int x = 0, y = 0, widest = 0;
    for (Placed& placed : plan.placed) {
        const int width = placed.symbolWidth + plan.gap + placed.text.size().width();
        if (x > 0 && (m_vertical || x + width > available)) {
            x = 0;
            y += plan.lineHeight + 1;
        }
        placed.at = QPoint(x, y);
        widest = std::max(widest, x + width);
        x += width + between;
    }
    const int fittedWidth = widest + look().marginLeft + look().marginRight;
    const int fittedHeight = y + plan.lineHeight + look().marginTop + look().marginBottom;
    plan.box = QSize(look().width > 0 ? look().width : fittedWidth,
                     look().height > 0 ? look().height : fittedHeight);
    return plan;
}

void LegendBox::draw(Canvas& canvas) {
    const Plan plan = this->plan();
    if (plan.placed.empty())
        return;
    const TextLook& style = look();
    canvas.box(QRect(*pos(), plan.box), style.background, style.edge, style.effect, style.corners);
    const QPoint origin = *pos() + QPoint(style.marginLeft, style.marginTop);
    for (const Placed& placed : plan.placed) {
        const QPoint corner = origin + placed.at;
        const int symbolTop = corner.y() + (plan.lineHeight - plan.symbolHeight) / 2;
        if (placed.key->drawSymbol) {
            placed.key->drawSymbol(canvas,
                                   QRectF(corner.x(), symbolTop, placed.symbolWidth, plan.symbolHeight));
        }
        const int textTop = corner.y() + (plan.lineHeight - placed.text.size().height()) / 2;
        placed.text.drawAt(canvas, QPointF(corner.x() + placed.symbolWidth + plan.gap, textTop), TopLeft);
    }
}

int LegendBox::measuredHeight() const {
    const Plan plan = this->plan();
    return plan.placed.empty() ? 0 : plan.box.height();
}

} // namespace chartdraw
