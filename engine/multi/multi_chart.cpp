#include "engine/multi/multi_chart.h"

#include "engine/paint/picture.h"
#include "engine/paint/picture_layer.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace chartdraw {

namespace {

constexpr int kMostLevels = 16;

/// What is drawn of charts that several others show, as long as the outermost of these is drawn: a ladder of
/// charts that show each other twice would be drawn twice as often at each step.
class DrawnOnce {
public:
    class Use {
    public:
        Use() { ++s_charts.m_depth; }
        ~Use() {
            if (--s_charts.m_depth == 0)
                s_charts.m_layers.clear();
        }
        Use(const Use&) = delete;
        Use& operator=(const Use&) = delete;

        /// The upper left part of a chart, drawn at a scale; null where memory does not suffice.
        QImage layer(Chart& chart, QSize seen, const ColourTable& colours, double scale) const {
            if (!chart.hasSeveralHosts())
                return draw(chart, seen, colours, scale);
            auto& layers = s_charts.m_layers;
            if (const auto found = layers.find(&chart); found != layers.end())
                return found->second.copy(QRect(QPoint(), pixels(seen, scale)));
            const QImage whole = draw(chart, {chart.width(), chart.height()}, colours, scale);
            layers[&chart] = whole;
            return whole.copy(QRect(QPoint(), pixels(seen, scale)));
        }
    };

private:
    static QSize pixels(QSize size, double scale) {
        return {static_cast<int>(std::ceil(size.width() * scale)),
                static_cast<int>(std::ceil(size.height() * scale))};
    }
    static QImage draw(Chart& chart, QSize size, const ColourTable& colours, double scale) {
        QImage layer(pixels(size, scale), QImage::Format_ARGB32_Premultiplied);
        if (layer.isNull())
            return layer;
        layer.fill(Qt::transparent);
        {
            Canvas part(layer, colours, true, QTransform::fromScale(scale, scale));
            chart.draw(part);
        }
        return layer;
    }

    static thread_local DrawnOnce s_charts;
    int m_depth = 0;
    std::map<const Chart*, QImage> m_layers;
};

thread_local DrawnOnce DrawnOnce::s_charts;

} // namespace

MultiChart::MultiChart(int width, int height, Colour background, Colour edge, int effect)
    : Chart(Kind::MultiChart, width, height, background, edge, effect) {}

MultiChart::~MultiChart() {
    for (const Shown& shown : m_shown)
        shown.chart->removeHost(this);
}

void MultiChart::addChart(QPoint at, Chart& chart) {
    if (isShownIn(&chart) || levelsAbove() + chart.levelsBelow() > kMostLevels)
        return;
    std::erase_if(m_shown, [&](const Shown& shown) { return shown.chart == &chart; });
    m_shown.reserve(m_shown.size() + 1); // nothing may fail between the two sides of the tie
    chart.addHost(this);
    // Far enough outside the picture, so that sums cannot overflow.
    constexpr int kFar = 2 * kMaxSide;
    m_shown.push_back({&chart, {std::clamp(at.x(), -kFar, kFar), std::clamp(at.y(), -kFar, kFar)}});
}

void MultiChart::setMainChart(Chart* chart) {
    if (shows(chart))
        m_main = chart;
}

bool MultiChart::shows(const Chart* chart) const {
    return std::any_of(
        m_shown.begin(), m_shown.end(), [&](const Shown& shown) { return shown.chart == chart; });
}

Chart* MultiChart::mainChart() const {
    return m_main != nullptr || m_shown.empty() ? m_main : m_shown.front().chart;
}

bool MultiChart::hasDataIn(const QRect& box) const {
    return std::any_of(
        m_shown.begin(), m_shown.end(),
        [&box](const Shown& shown) { return shown.chart->hasDataIn(box.translated(-shown.at)); });
}

void MultiChart::collectKeys(std::vector<LegendKey>& keys) const {
    const Chart* main = mainChart();
    if (main == nullptr || main->legend() != nullptr)
        return;
    std::vector<LegendKey> own;
    main->collectKeys(own);
    for (LegendKey& key : own) {
        // Its patterns are known to the colours of its chart, and to none above.
        if (key.drawSymbol) {
            key.drawSymbol = [draw = std::move(key.drawSymbol), main](Canvas& canvas, const QRectF& area) {
                const QRect place = area.toAlignedRect();
                PictureLayer layer(canvas.painter(), place);
                {
                    ColourTable colours = main->colours();
                    colours.addPatternsOf(canvas.colours(), -place.topLeft());
                    Canvas part(layer.image(), colours, true, layer.transformFrom(place.topLeft()));
                    draw(part, QRectF(QPointF(), area.size()));
                }
                layer.drawOn(canvas.painter());
            };
        }
        keys.push_back(std::move(key));
    }
}

void MultiChart::drawBody(Canvas& canvas) {
    const DrawnOnce::Use drawn;
    for (const Shown& shown : m_shown) {
        drawnIn(*shown.chart);
        // What lies beyond the right and lower side need not be drawn; a chart still sees its upper left
        // corner at (0, 0).
        const QSize whole(shown.chart->width(), shown.chart->height());
        if (whole.isEmpty() || whole.width() > kMaxSide || whole.height() > kMaxSide)
            continue;
        const QRect area = QRect(shown.at, whole) & QRect(0, 0, width(), height());
        if (area.isEmpty())
            continue;
        const QPoint seen = area.bottomRight() - shown.at;
        ColourTable colours = shown.chart->colours();
        colours.addPatternsOf(canvas.colours(), -shown.at);
        const QPoint place = canvas.painter().worldTransform().map(QPointF(shown.at)).toPoint();
        drawPixels(canvas.painter(), place,
                   drawn.layer(*shown.chart, {seen.x() + 1, seen.y() + 1}, colours, canvas.scale()));
    }
}

std::vector<Chart*> MultiChart::shownCharts() const {
    std::vector<Chart*> charts;
    for (const Shown& shown : m_shown)
        charts.push_back(shown.chart);
    return charts;
}

void MultiChart::hostedEnds(Chart* chart) {
    std::erase_if(m_shown, [&](const Shown& shown) { return shown.chart == chart; });
    if (m_main == chart)
        m_main = nullptr;
    changed();
}

} // namespace chartdraw
