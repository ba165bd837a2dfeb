#include "engine/text/text_block.h"

#include "engine/paint/picture_layer.h"
#include "engine/text/glyph_text.h"

#include <QRawFont>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace chartdraw {

namespace {

// Beyond these nothing of a box is in any picture, and arithmetic stays exact.
constexpr int kMaxBoxSide = 1 << 16;
constexpr double kMaxPlace = 1 << 20;

double limitedAngle(double degrees) {
    if (!std::isfinite(degrees))
        return 0;
    const double turned = std::fmod(degrees, 360);
    return turned < 0 ? turned + 360 : turned;
}

QPointF limitedPlace(QPointF point) {
    const auto limit = [](double v) { return std::isnan(v) ? 0.0 : std::clamp(v, -kMaxPlace, kMaxPlace); };
    return {limit(point.x()), limit(point.y())};
}

/// The alignment point of a box of this size, from its top left corner.
QPointF alignmentPoint(QSizeF size, int alignment) {
    return {size.width() * (horizontalOf(alignment) + 1) / 2,
            size.height() * (verticalOf(alignment) + 1) / 2};
}

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == text.npos;
}

} // namespace

void TextLook::setMargins(int left, int right, int top, int bottom) {
    marginLeft = left;
    marginRight = right;
    marginTop = top;
    marginBottom = bottom;
}

struct TextBlock::Layout {
    Layout(const TextLook& look, std::string_view text, const FontSet& fonts);

    /// Quarter turns, counter-clockwise; -1 for a slanted box.
    int quarterTurns() const { return std::fmod(angle, 90) == 0 ? static_cast<int>(angle / 90) : -1; }
    QRectF upright() const { return {QPointF(), QSizeF(box)}; }
    /// From the upright box, its top left corner at the origin, to the turned one at the same corner.
    QTransform turn() const;
    /// From the upright box to its place.
    QTransform placed(QPointF anchor, int alignment) const;
    QTransform pivoted(QPointF anchor, int alignment) const;

    void draw(Canvas& canvas, const QTransform& place) const;
    void drawBox(Canvas& canvas, const QTransform& place) const;
    void drawGlyphs(QPainter& painter, const ColourTable& colours) const;
    void drawQuarterTurned(Canvas& canvas, const QTransform& place) const;
    void drawOutlines(Canvas& canvas, const QTransform& place) const;

    GlyphText text;
    QPoint textCorner; ///< Of the text in the upright box.
    QSize box;
    QSize bounds;
    double angle = 0;
    bool blank = true;
    Colour background, edge;
    int effect;
    Corners corners;
    bool smooth; ///< outlines that are filled
};

TextBlock::Layout::Layout(const TextLook& look, std::string_view utf8, const FontSet& fonts)
    : text(layOutGlyphs(look, utf8, fonts)), angle(limitedAngle(look.angle)),
      blank(isBlank(utf8) || text.pieces.empty()), background(look.background), edge(look.edge),
      effect(look.effect), corners(look.corners), smooth(fonts.smooth) {
    const auto margin = [](int pixels) { return std::clamp(pixels, -kMaxBoxSide, kMaxBoxSide); };
    const int left = margin(look.marginLeft), top = margin(look.marginTop);
    const int acrossMargins = left + margin(look.marginRight), downMargins = top + margin(look.marginBottom);
    const auto side = [](int given, int fitted) {
        return std::clamp(given > 0 ? given : fitted, 0, kMaxBoxSide);
    };
    box = {side(look.width, text.size.width() + acrossMargins),
           side(look.height, text.size.height() + downMargins)};
    const auto aligned = [](int room, int place) { return (room * (place + 1)) >> 1; };
    textCorner = {left +
                      aligned(box.width() - acrossMargins - text.size.width(), horizontalOf(look.alignment)),
                  top + aligned(box.height() - downMargins - text.size.height(), verticalOf(look.alignment))};
    const QSizeF turned = turn().mapRect(upright()).size();
    bounds = {static_cast<int>(std::ceil(turned.width() - 1e-6)),
              static_cast<int>(std::ceil(turned.height() - 1e-6))};
}

QTransform TextBlock::Layout::turn() const {
    // The toolkit turns by multiples of a quarter without rounding errors; its angles run clockwise.
    return QTransform().rotate(-angle);
}

QTransform TextBlock::Layout::placed(QPointF anchor, int alignment) const {
    const QPointF corner = limitedPlace(anchor) - alignmentPoint(bounds, alignment);
    const QTransform turned = turn();
    const QRectF turnedBox = turned.mapRect(upright());
    // The box may be a fraction of a pixel smaller than its bounds: it stands in their middle.
    const QPointF slack((bounds.width() - turnedBox.width()) / 2, (bounds.height() - turnedBox.height()) / 2);
    const QPointF move =
        QPointF(std::round(corner.x()), std::round(corner.y())) + slack - turnedBox.topLeft();
    return turned * QTransform::fromTranslate(move.x(), move.y());
}

QTransform TextBlock::Layout::pivoted(QPointF anchor, int alignment) const {
    if (quarterTurns() >= 0) {
        // Upright and quarter-turned boxes stand on whole pixels.
        const QPointF pivot = turn().map(alignmentPoint(box, alignment));
        const QPointF corner = limitedPlace(anchor) - pivot;
        return turn() * QTransform::fromTranslate(std::round(corner.x()), std::round(corner.y()));
    }
    const QPointF point = alignmentPoint(box, alignment), at = limitedPlace(anchor);
    return QTransform::fromTranslate(-point.x(), -point.y()) * turn() *
           QTransform::fromTranslate(at.x(), at.y());
}

void TextBlock::Layout::draw(Canvas& canvas, const QTransform& place) const {
    drawBox(canvas, place);
    if (text.pieces.empty())
        return;
    if (!blank)
        canvas.textDrawn(place.map(QPolygonF(QRectF(textCorner, text.size))));
    switch (quarterTurns()) {
    case 0: {
        QPainter& painter = canvas.painter();
        const QPointF corner = place.map(QPointF(textCorner));
        painter.translate(corner);
        drawGlyphs(painter, canvas.colours());
        painter.translate(-corner);
        break;
    }
    case -1:
        drawOutlines(canvas, place);
        break;
    default:
        drawQuarterTurned(canvas, place);
    }
}

void TextBlock::Layout::drawBox(Canvas& canvas, const QTransform& place) const {
    const ColourTable& colours = canvas.colours();
    const bool visible = effect != 0 || !colours.invisible(background) || !colours.invisible(edge);
    if (!visible || box.isEmpty())
        return;
    const int quarters = quarterTurns();
    if (quarters < 0) {
        canvas.shape(place.map(roundedRect(upright(), corners)), background, edge, effect);
        return;
    }
    Corners turned = corners;
    std::rotate(turned.begin(), turned.begin() + quarters, turned.end());
    canvas.box(place.mapRect(upright()).toRect(), background, edge, effect, turned);
}

void TextBlock::Layout::drawGlyphs(QPainter& painter, const ColourTable& colours) const {
    for (const GlyphPiece& piece : text.pieces) {
        if (colours.invisible(piece.colour))
            continue;
        const QColor colour = colours.solid(piece.colour);
        painter.setPen(colour);
        for (const QGlyphRun& run : piece.glyphs)
            painter.drawGlyphRun(piece.offset, run);
        if (!piece.underline.isEmpty())
            painter.fillRect(piece.underline, colour);
    }
}

/// Draws upright and turns the pixels: as sharp as upright text.
void TextBlock::Layout::drawQuarterTurned(Canvas& canvas, const QTransform& place) const {
    // Italic letters may lean out of their box.
    constexpr int kOverhang = 16;
    const QRect area = QRect(textCorner, text.size).adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
    const QRect pictureArea(0, 0, canvas.width(), canvas.height());
    if (!place.mapRect(QRectF(area)).intersects(pictureArea))
        return;
    const QRect seen = area & place.inverted().mapRect(QRectF(pictureArea)).toAlignedRect();
    const double scale = canvas.scale();
    QImage image((QSizeF(seen.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(textCorner - seen.topLeft());
    drawGlyphs(painter, canvas.colours());
    painter.end();
    const QRectF turned = canvas.painter().worldTransform().mapRect(place.mapRect(QRectF(seen)));
    drawPixels(canvas.painter(), turned.topLeft().toPoint(), image.transformed(turn()));
}

/// Fills the outlines of the letters: each stands exactly where it belongs, so that a slanted line of text
/// does not dance.
void TextBlock::Layout::drawOutlines(Canvas& canvas, const QTransform& place) const {
    QPainter& painter = canvas.painter();
    // Letters that begin far outside leave no mark; a long text is not filled for nothing.
    const QRectF picture = place.inverted().mapRect(QRectF(0, 0, canvas.width(), canvas.height()));
    painter.save();
    painter.setTransform(QTransform::fromTranslate(textCorner.x(), textCorner.y()) * place, true);
    painter.setRenderHint(QPainter::Antialiasing, smooth);
    painter.setPen(Qt::NoPen);
    for (const GlyphPiece& piece : text.pieces) {
        if (canvas.colours().invisible(piece.colour))
            continue;
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        for (const QGlyphRun& run : piece.glyphs) {
            const QList<quint32> indexes = run.glyphIndexes();
            const QList<QPointF> positions = run.positions();
            const QRawFont font = run.rawFont();
            const double reach = 4 * font.pixelSize();
            const QRectF seen = picture.adjusted(-reach, -reach, reach, reach).translated(-textCorner);
            for (qsizetype i = 0; i < indexes.size(); ++i)
                if (const QPointF at = positions[i] + piece.offset; seen.contains(at))
                    path.addPath(font.pathForGlyph(indexes[i]).translated(at));
        }
        path.addRect(piece.underline);
        painter.fillPath(path, canvas.colours().solid(piece.colour));
    }
    painter.restore();
}

TextBlock::TextBlock(const TextLook& look, std::string_view text, const FontSet& fonts)
    : m_layout(std::make_unique<Layout>(look, text, fonts)) {}
TextBlock::~TextBlock() = default;
TextBlock::TextBlock(TextBlock&&) noexcept = default;
TextBlock& TextBlock::operator=(TextBlock&&) noexcept = default;

bool TextBlock::empty() const {
    return m_layout->blank;
}

QSize TextBlock::boxSize() const {
    return m_layout->box;
}

QSize TextBlock::size() const {
    return m_layout->bounds;
}

QRectF TextBlock::boundsAt(QPointF anchor, int alignment) const {
    const QPointF corner = limitedPlace(anchor) - alignmentPoint(m_layout->bounds, alignment);
    return {QPointF(std::round(corner.x()), std::round(corner.y())), QSizeF(m_layout->bounds)};
}

QPolygonF TextBlock::outlineAt(QPointF anchor, int alignment) const {
    return m_layout->placed(anchor, alignment).map(QPolygonF(m_layout->upright()));
}

void TextBlock::drawAt(Canvas& canvas, QPointF anchor, int alignment) const {
    m_layout->draw(canvas, m_layout->placed(anchor, alignment));
}

QRectF TextBlock::pivotBoundsAt(QPointF anchor, int alignment) const {
    return pivotOutlineAt(anchor, alignment).boundingRect();
}

QPolygonF TextBlock::pivotOutlineAt(QPointF anchor, int alignment) const {
    // A closed polygon of five points, clockwise from the corner that is top left when upright.
    return m_layout->pivoted(anchor, alignment).map(QPolygonF(m_layout->upright()));
}

void TextBlock::drawPivotAt(Canvas& canvas, QPointF anchor, int alignment) const {
    m_layout->draw(canvas, m_layout->pivoted(anchor, alignment));
}

} // namespace chartdraw
