#include "engine/chart/legend.h"

#include "engine/chart/chart.h"
#include "engine/scale/format.h"
#include "engine/text/fitted_text.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace chartdraw {

namespace {

constexpr int kBorder = 2;                  // pixels that the box keeps from the side of the picture
constexpr Colour kLightGround = 0x30ffffff; // and a little of what it stands on
constexpr Colour kDarkGround = 0x30000000;

/// What a text of this colour is read on.
Colour groundFor(Colour text) {
    const bool plain = (text >> 24) == 0;
    const bool light = plain && (text >> 16 & 0xff) + (text >> 8 & 0xff) + (text & 0xff) > 3 * 0x90;
    return light ? kDarkGround : kLightGround;
}

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
    QPoint at;         ///< upper left corner inside the box's margins
    int rowHeight = 0; ///< of the row that it stands in
};

struct LegendBox::Plan {
    std::vector<LegendKey> keys; ///< kept alive for `placed`
    std::vector<Placed> placed;
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

/// Keys in one row where they fit, else in as many columns as fit, or in one if they are to stand below each
/// other. `between`: pixels between two keys of a row.
QSize LegendBox::placeKeys(Plan& plan, int available, int between) const {
    const std::size_t count = plan.placed.size();
    const auto width = [&](const Placed& placed) {
        return placed.symbolWidth + plan.gap + placed.text.size().width();
    };
    std::vector<int> columns;
    int total = 0;
    // No key is narrower than its symbol, which bounds the columns to try.
    const auto most = static_cast<std::size_t>(std::max(1, available / (plan.symbolHeight + between) + 1));
    for (std::size_t tried = m_vertical ? 1 : std::min(count, most); tried > 0; --tried) {
        columns.assign(tried, 0);
        for (std::size_t i = 0; i < count; ++i)
            columns[i % tried] = std::max(columns[i % tried], width(plan.placed[i]));
        total = std::accumulate(columns.begin(), columns.end(), between * static_cast<int>(tried - 1));
        if (total <= available)
            break;
    }
    int y = 0;
    for (std::size_t row = 0; row < count; row += columns.size()) {
        const std::size_t end = std::min(count, row + columns.size());
        int height = plan.symbolHeight, x = 0;
        for (std::size_t i = row; i < end; ++i)
            height = std::max(height, plan.placed[i].text.size().height());
        for (std::size_t i = row; i < end; ++i) {
            plan.placed[i].at = QPoint(x, y);
            plan.placed[i].rowHeight = height;
            x += columns[i - row] + between;
        }
        y += height + 1;
    }
    return {total, y - 1};
}

std::shared_ptr<const LegendBox::Plan> LegendBox::plan() const {
    const auto made = std::make_shared<Plan>();
    Plan& plan = *made;
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
    const int available = (look().width > 0 ? look().width : chart().width() - pos()->x() - kBorder) -
                          look().marginLeft - look().marginRight;
    const int below = chart().height() - kBorder - pos()->y() - look().marginTop - look().marginBottom;
    plan.symbolHeight = std::max(5, em * 2 / 3);
    plan.gap = std::max(3, em / 3);
    const bool anyWide = std::any_of(plan.keys.begin(), plan.keys.end(), [](auto& key) { return key.wide; });
    const Format format(text());
    plan.placed.reserve(plan.keys.size());
    for (const LegendKey& key : plan.keys) {
        // In a column all texts start at one edge; in a row each symbol is as wide as it needs.
        const bool wide = m_vertical ? anyWide : key.wide;
        const int symbolWidth = wide ? em * 3 / 2 : plan.symbolHeight;
        const int beside = std::max(2 * em, available - symbolWidth - plan.gap);
        TextBlock block = fittedText(bare, key.fields ? format.apply(*key.fields) : key.text, chart().fonts(),
                                     QSize(beside, std::max(em, below)));
        plan.placed.push_back({&key, std::move(block), symbolWidth, {}});
    }
    if (plan.placed.empty())
        return nullptr;
    QSize keys = placeKeys(plan, available, em);
    // Keys that would lie below the picture are left out, as long as one is left.
    while (look().height <= 0 && keys.height() > below &&
           plan.placed.front().at.y() < plan.placed.back().at.y()) {
        const int row = plan.placed.back().at.y();
        std::erase_if(plan.placed, [row](const Placed& placed) { return placed.at.y() >= row; });
        keys.setHeight(row - 1);
    }
    const int fittedWidth = keys.width() + look().marginLeft + look().marginRight;
    const int fittedHeight = keys.height() + look().marginTop + look().marginBottom;
    plan.box = QSize(look().width > 0 ? look().width : fittedWidth,
                     look().height > 0 ? look().height : fittedHeight);
    return made;
}

QRect LegendBox::boxOf(const Plan& plan) const {
    // Where it would leave the picture it moves back, as far as there is room.
    const auto within = [](int at, int length, int picture) {
        return at >= picture ? at : std::min(at, std::max(std::min(at, 0), picture - kBorder - length));
    };
    return {QPoint(within(pos()->x(), plan.box.width(), chart().width()),
                   within(pos()->y(), plan.box.height(), chart().height())),
            plan.box};
}

void LegendBox::draw(Canvas& canvas, const Plan& plan) const {
    const TextLook& style = look();
    const QRect box = boxOf(plan);
    // On data, keys would be hard to read without a ground of their own.
    const bool bare = canvas.colours().invisible(style.background) && chart().hasDataIn(box);
    canvas.box(box, bare ? groundFor(style.colour) : style.background, style.edge, style.effect,
               style.corners);
    const QPoint origin = box.topLeft() + QPoint(style.marginLeft, style.marginTop);
    for (const Placed& placed : plan.placed) {
        const QPoint corner = origin + placed.at;
        const int symbolTop = corner.y() + (placed.rowHeight - plan.symbolHeight) / 2;
        if (placed.key->drawSymbol) {
            placed.key->drawSymbol(canvas,
                                   QRectF(corner.x(), symbolTop, placed.symbolWidth, plan.symbolHeight));
        }
        const int textTop = corner.y() + (placed.rowHeight - placed.text.size().height()) / 2;
        placed.text.drawAt(canvas, QPointF(corner.x() + placed.symbolWidth + plan.gap, textTop), TopLeft);
    }
}

int LegendBox::measuredHeight() const {
    const auto plan = this->plan();
    return plan != nullptr ? plan->box.height() : 0;
}

} // namespace chartdraw
