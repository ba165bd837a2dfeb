#include "engine/multi/multi_chart.h"

#include "engine/paint/picture.h"

#include <algorithm>

namespace chartdraw {

MultiChart::MultiChart(int width, int height, Colour background, Colour edge, int effect)
    : Chart(Kind::MultiChart, width, height, background, edge, effect) {}

MultiChart::~MultiChart() {
    for (const Shown& shown : m_shown)
        shown.chart->removeHost(this);
}

void MultiChart::addChart(QPoint at, Chart& chart) {
    if (isShownIn(&chart))
        return;
    std::erase_if(m_shown, [&](const Shown& shown) { return shown.chart == &chart; });
    // Far enough outside the picture, so that sums cannot overflow.
    constexpr int kFar = 2 * kMaxSide;
    m_shown.push_back({&chart, {std::clamp(at.x(), -kFar, kFar), std::clamp(at.y(), -kFar, kFar)}});
    chart.addHost(this);
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
    for (const Shown& shown : m_shown) {
        // What lies beyond the right and lower side need not be drawn; a chart still sees its upper left
        // corner at (0, 0).
        const QSize whole(shown.chart->width(), shown.chart->height());
        if (whole.isEmpty() || whole.width() > kMaxSide || whole.height() > kMaxSide)
            continue;
        const QRect area = QRect(shown.at, whole) & QRect(0, 0, width(), height());
        if (area.isEmpty())
            continue;
        const QPoint seen = area.bottomRight() - shown.at;
        QImage layer(seen.x() + 1, seen.y() + 1, QImage::Format_ARGB32_Premultiplied);
        if (layer.isNull())
            continue;
        layer.fill(Qt::transparent);
        {
            ColourTable colours = shown.chart->colours();
            colours.addPatternsOf(canvas.colours(), -shown.at);
            Canvas part(layer, colours);
            shown.chart->draw(part);
        }
        canvas.painter().drawImage(shown.at, layer);
    }
}

void MultiChart::hostedEnds(Chart* chart) {
    std::erase_if(m_shown, [&](const Shown& shown) { return shown.chart == chart; });
    if (m_main == chart)
        m_main = nullptr;
    changed();
}

} // namespace chartdraw
