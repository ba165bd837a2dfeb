#include "engine/chart/chart.h"

#include "engine/paint/picture.h"
#include "engine/paint/spare_image.h"
#include "engine/text/application.h"

#include <algorithm>
#include <atomic>
#include <bit>
#include <cmath>
#include <map>
#include <utility>

namespace chartdraw {

bool DrawArea::load(const std::string& path) {
    QImage read = loadPicture(path);
    if (read.isNull())
        return false;
    m_image = std::move(read);
    m_chart.setSize(m_image.width(), m_image.height());
    return true;
}

void DrawArea::changed() {
    m_chart.changed();
}

QSize DrawArea::size() const {
    return {m_chart.width(), m_chart.height()};
}

Chart::Chart(Kind kind, int width, int height, Colour background, Colour edge, int effect)
    : Object(kind), m_width(width), m_height(height), m_background(background), m_edge(edge),
      m_effect(effect), m_drawArea(*this) {
    ensureApplication();
}

Chart::~Chart() {
    for (Chart* host : m_hosts)
        host->hostedEnds(this);
}

void Chart::setSize(int width, int height) {
    m_width = width;
    m_height = height;
}

void Chart::setBackground(Colour background, Colour edge, int effect) {
    m_background = orDefault(background, m_background);
    m_edge = orDefault(edge, m_edge);
    m_effect = effect;
}

void Chart::setBackgroundImage(std::string path, int alignment) {
    m_imagePath = std::move(path);
    m_imageAlignment = alignment;
}

void Chart::setRoundedFrame(Colour exterior, const Corners& corners) {
    m_rounded = true;
    m_exterior = orDefault(exterior, 0xffffff);
    m_corners = corners;
}

void Chart::setDefaultFonts(FontSet fonts) {
    for (std::size_t i = 0; i < fonts.files.size(); ++i)
        if (!fonts.files[i].empty())
            m_fonts.files[i] = std::move(fonts.files[i]);
}

void Chart::setAntiAlias(bool shapes, int textMode) {
    m_smoothShapes = shapes;
    m_fonts.smooth = textMode != 0;
}

TextBox* Chart::addTitle(int alignment, std::string text, const TextLook& look, bool strip) {
    auto* title = own<Title>(*this, std::move(text), look, alignment, strip);
    m_titles.push_back(title);
    return title;
}

TextBox* Chart::addText(std::string text, const TextLook& look, QPoint at, int alignment) {
    auto* box = own<FreeText>(*this, std::move(text), look, at, alignment);
    m_objects.push_back(box);
    return box;
}

Line* Chart::addLine(QPoint from, QPoint to, Colour colour, int width) {
    auto* line = own<Line>(*this, from, to, colour, width);
    m_objects.push_back(line);
    return line;
}

LegendBox* Chart::addLegend(QPoint at, bool vertical, const TextLook& look) {
    if (m_legend == nullptr)
        m_legend = own<LegendBox>(*this);
    m_legend->show(at, vertical, look);
    return m_legend;
}

const char* Chart::keepText(std::string text) {
    return m_texts.insert(std::move(text)).first->c_str();
}

void Chart::changed() {
    m_stale = true;
    // Charts may show one another in more ways than can be gone through again and again.
    if (std::exchange(m_hostsTold, true))
        return;
    for (Chart* host : m_hosts)
        host->changed();
}

QByteArray Chart::drawnPicture(double scale) {
    const auto drawn = [scale](int side) {
        return static_cast<int>(std::clamp(std::round(side * scale), 1.0, kMaxSide + 1.0));
    };
    if (m_width <= 0 || m_height <= 0 || m_width > kMaxSide || m_height > kMaxSide ||
        drawn(m_width) > kMaxSide || drawn(m_height) > kMaxSide)
        return {};
    SpareImage spare({drawn(m_width), drawn(m_height)});
    QImage& image = spare.image();
    if (image.isNull())
        return {};
    image.fill(Qt::white);
    {
        // The painter must be gone before the pixels are read, which would make it a copy of them all.
        Canvas canvas(image, m_colours, true, QTransform::fromScale(scale, scale));
        draw(canvas);
    }
    return bitmapFile(image);
}

bool Chart::makePicture(double scale, const char** data, int* length) {
    if (m_stale || scale != m_pictureScale) {
        m_picture.clear(); // also what a picture leaves that memory does not suffice for
        m_stale = true;
        m_picture = drawnPicture(scale);
        m_pictureScale = scale;
        m_stale = m_picture.isEmpty();
        static std::atomic<unsigned> pictures = 0;
        if (std::has_single_bit(++pictures)) // the toolkit makes things at first need
            watchForTheEnd();
    }
    *data = m_picture.isEmpty() ? nullptr : m_picture.constData();
    *length = static_cast<int>(m_picture.size());
    return !m_picture.isEmpty();
}

void Chart::draw(Canvas& canvas) {
    canvas.painter().setRenderHint(QPainter::Antialiasing, m_smoothShapes);
    drawBackground(canvas);
    // What the caller places is entered before anything looks for room beside it.
    m_textRoom = TextRoom(QSize(m_width, m_height));
    std::vector<PlacedText> titles;
    TitleStacks stacks(QSize(m_width, m_height));
    for (const Title* title : m_titles)
        titles.push_back(title->placed(stacks));
    std::vector<std::optional<PlacedText>> texts;
    for (const DrawObj* object : m_objects)
        texts.push_back(object->placedText());
    for (const PlacedText& title : titles)
        title.reserve(m_textRoom);
    for (const std::optional<PlacedText>& text : texts)
        if (text)
            text->reserve(m_textRoom);
    const auto legend = m_legend != nullptr ? m_legend->plan() : nullptr;
    if (legend != nullptr)
        m_textRoom.reserve(QPolygonF(QRectF(m_legend->boxOf(*legend))));

    if (!m_drawArea.image().isNull())
        canvas.painter().drawImage(0, 0, m_drawArea.image());
    drawBody(canvas);
    for (const PlacedText& title : titles)
        title.draw(canvas);
    if (legend != nullptr)
        m_legend->draw(canvas, *legend);
    for (std::size_t i = 0; i < m_objects.size(); ++i)
        texts[i] ? texts[i]->draw(canvas) : m_objects[i]->draw(canvas);
    drawTop(canvas);
}

void Chart::drawBackground(Canvas& canvas) {
    const QRect all(0, 0, m_width, m_height);
    if (m_rounded)
        canvas.fillRect(all, m_exterior);
    const Corners corners = m_rounded ? m_corners : Corners{};
    if (m_imagePath.empty()) {
        canvas.box(all, m_background, m_edge, m_effect, corners);
        return;
    }
    canvas.box(all, m_background, kTransparent, 0, corners);
    QPainter& painter = canvas.painter();
    painter.save();
    if (m_rounded)
        painter.setClipPath(roundedRect(all, corners));
    drawImage(canvas, loadPicture(m_imagePath), all, m_imageAlignment);
    painter.restore();
    canvas.box(all, kTransparent, m_edge, m_effect, corners);
}

void Chart::drawBody(Canvas& /*canvas*/) {}

void Chart::drawTop(Canvas& /*canvas*/) {}

void Chart::collectKeys(std::vector<LegendKey>& /*keys*/) const {}

void Chart::hostedEnds(Chart* /*chart*/) {}

bool Chart::hasDataIn(const QRect& /*box*/) const {
    return false;
}

bool Chart::meets(const QRectF& box, const QRectF& ellipse) {
    const QPointF centre = ellipse.center();
    const double aside = (std::clamp(centre.x(), box.left(), box.right()) - centre.x()) / ellipse.width();
    const double above = (std::clamp(centre.y(), box.top(), box.bottom()) - centre.y()) / ellipse.height();
    return aside * aside + above * above < 0.25; // of the diameters; no number for an ellipse without area
}

void Chart::addHost(Chart* host) {
    if (std::find(m_hosts.begin(), m_hosts.end(), host) == m_hosts.end())
        m_hosts.push_back(host);
}

void Chart::removeHost(Chart* host) {
    std::erase(m_hosts, host);
}

bool Chart::isShownIn(const Chart* other) const {
    std::set<const Chart*> seen{this};
    std::vector<const Chart*> open{this};
    while (!open.empty()) {
        const Chart* chart = open.back();
        open.pop_back();
        for (const Chart* host : chart->m_hosts)
            if (seen.insert(host).second)
                open.push_back(host);
    }
    return seen.contains(other);
}

namespace {

/// The longest way from a chart along `next`, each chart looked at once.
template <class Next>
int longestWay(const Chart* chart, Next next, std::map<const Chart*, int>& known) {
    if (const auto found = known.find(chart); found != known.end())
        return found->second;
    int longest = 0;
    for (const Chart* other : next(chart))
        longest = std::max(longest, longestWay(other, next, known));
    return known[chart] = longest + 1;
}

} // namespace

int Chart::levelsBelow() const {
    std::map<const Chart*, int> known;
    return longestWay(
        this, [](const Chart* chart) { return chart->shownCharts(); }, known);
}

int Chart::levelsAbove() const {
    std::map<const Chart*, int> known;
    return longestWay(
        this, [](const Chart* chart) { return chart->m_hosts; }, known);
}

} // namespace chartdraw
