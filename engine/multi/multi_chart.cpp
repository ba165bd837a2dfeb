#include "engine/multi/multi_chart.h"

#include "engine/paint/picture.h"

#include <algorithm>
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

        /// The upper left part of a chart; null where memory does not suffice.
        QImage layer(Chart& chart, QSize seen, const ColourTable& colours) const {
            if (!chart.hasSeveralHosts())
                return draw(chart, seen, colours);
            auto& layers = s_charts.m_layers;
            if (const auto found = layers.find(&chart); found != layers.end())
                return found->second.copy(QRect(QPoint(), seen));
            const QImage whole = draw(chart, {chart.width(), chart.height()}, colours);
            layers[&chart] = whole;
            return whole.copy(QRect(QPoint(), seen));
        }
    };

private:
    static QImage draw(Chart& chart, QSize size, const ColourTable& colours) {
        QImage layer(size, QImage::Format_ARGB32_Premultiplied);
        if (layer.isNull())
            return layer;
        layer.fill(Qt::transparent);
        {
            Canvas part(layer, colours);
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
                QImage image(area.toAlignedRect().size(), QImage::Format_ARGB32_Premultiplied);
                image.fill(Qt::transparent);
                {
                    ColourTable colours = main->colours();
                    colours.addPatternsOf(canvas.colours(), -area.toAlignedRect().topLeft());
                    Canvas part(image, colours);
                    draw(part, QRectF(QPointF(), area.size()));
                }
                canvas.painter().drawImage(area.toAlignedRect().topLeft(), image);
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
        canvas.painter().drawImage(shown.at,
                                   drawn.layer(*shown.chart, {seen.x() + 1, seen.y() + 1}, colours));
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
