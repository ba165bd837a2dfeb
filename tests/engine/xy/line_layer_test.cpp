// Lines and symbols by their pixels, and the points that are kept of long lines. Places are worked out by
// hand from layers.h; rows without bars run from column 50 to column 350.

#include "engine/chart/chart.h"
#include "engine/xy/curves.h"
#include "engine/xy/line_layer.h"
#include "engine/xy/xy_chart.h"
#include "tests/engine/xy/layers.h"
#include <algorithm>
#include <random>

namespace {
using namespace layers;

TEST(LineLayer, RunsOnWholePixelsThroughItsValuesAndBreaksAtGaps) {
    // all that is drawn, no piece touching another
    const std::tuple<const char*, std::vector<double>, int, std::vector<QRect>> rows[] = {
        {"level", {50, 50}, 1, {QRect(50, 130, 301, 1)}},
        {"level between pixels", {50.2, 50.2}, 1, {QRect(50, 130, 301, 1)}},
        {"gaps of every sort",
         {50, kGap, 50, 50, NAN, INFINITY, 25},
         1,
         {QRect(50, 130, 1, 1), QRect(150, 130, 51, 1), QRect(350, 180, 1, 1)}},
        {"one row", {25}, 1, {QRect(200, 180, 1, 1)}},
        {"nothing", {}, 1, {}},
        {"nothing but gaps", {kGap, NAN}, 1, {}},
        {"no width", {50, 50}, 0, {}},
    };
    for (const auto& [what, data, width, pieces] : rows) {
        Chart chart;
        line(chart, data, kRed, width);
        const QImage image = chart.picture();
        int pixels = 0;
        for (const QRect& piece : pieces) {
            EXPECT_EQ(boundsOf(image.copy(piece), kRed), QRect(QPoint(), piece.size())) << what;
            pixels += piece.width() * piece.height();
        }
        EXPECT_EQ(inked(image, kWhite), pixels) << what;
    }
}

TEST(LineLayer, IsNotCutInHalfAtTheFrameButEndsThere) {
    Chart chart;
    LineLayer* layer = line(chart, {100, 100, 300, 300}, kRed, 5);
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(layer), 0), CHART_SQUARE_SYMBOL, 9, kBlue, kBlue, 1);
    const QImage image = chart.picture();
    EXPECT_EQ(boundsOf(image, kBlue).top(), 26); // both symbols whole, none at 300
    EXPECT_EQS((boundsOf(image, kBlue), QRect(46, 26, 109, 9)),
               (boundsOf(image.copy(80, 0, 50, 300), kRed), QRect(0, 28, 50, 5)),
               (inked(image.copy(0, 0, 400, 26), kWhite), 0));
}

TEST(LineLayer, DenseCloudsLookAsIfAllSymbolsWereDrawn) {
    std::vector<double> x(60000), y(60000);
    unsigned noise = 1;
    const auto next = [&noise] { return static_cast<double>((noise = noise * 1664525u + 1013904223u) >> 16) / 65536; };
    for (std::size_t i = 0; i < x.size(); ++i) {
        x[i] = std::sqrt(next()) * 100; // dense on one side
        y[i] = next() * 100;
    }
    for (const int symbol : {CHART_SQUARE_SYMBOL, CHART_CIRCLE_SYMBOL, CHART_CROSS_SYMBOL}) {
        for (const unsigned colour : {0x4479bbu, 0x804479bbu, 0xe04479bbu}) {
            const auto drawn = [&](int layers) {
                Chart chart;
                CAxis_setLinearScale(CXYChart_xAxis(chart.xy), -5, 105, 0, 0);
                const int count = size(x) / layers;
                for (int i = 0; i < layers; ++i)
                    CXYChart_addScatterLayer(chart.xy, x.data() + i * count, count, y.data() + i * count, count,
                                             nullptr, symbol, 9, static_cast<int>(colour), kNone);
                return chart.picture();
            };
            const QImage all = drawn(1), inParts = drawn(20);
            int most = 0;
            for (int row = 0; row < all.height(); ++row) {
                for (int column = 0; column < all.width(); ++column) {
                    const QRgb a = all.pixel(column, row), b = inParts.pixel(column, row);
                    most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                     std::abs(qBlue(a) - qBlue(b))});
                }
            }
            EXPECT_LE(most, 12) << "more than rounding: " << symbol << ", " << std::hex << colour;
        }
    }
}

TEST(LineLayer, StepsKeepTheValueUntilTheNextRow) {
    Chart chart;
    const double data[] = {10, 40, 40};
    StepLineLayer* steps = CXYChart_addStepLineLayer(chart.xy, data, 3, kRed, nullptr);
    CLayer_setLineWidth(LineLayer2Layer(StepLineLayer2LineLayer(steps)), 1);
    const QImage image = chart.picture();
    EXPECT_EQS((boundsOf(image.copy(50, 0, 150, 300), kRed), QRect(0, 210, 150, 1)),
               (boundsOf(image.copy(200, 0, 1, 300), kRed), QRect(0, 150, 1, 61)),
               (boundsOf(image.copy(201, 0, 200, 300), kRed), QRect(0, 150, 150, 1)));
}

TEST(LineLayer, CurvesGoThroughTheirPointsAndShowNoOtherPeak) {
    const std::tuple<const char*, std::vector<QPointF>> rows[] = {
        {"equal neighbours", {{0, 10}, {10, 10}, {20, 90}, {30, 90}, {40, 5}}},
        {"uneven", {{0, 0}, {1, 50}, {40, 55}, {41, 0}, {80, 1}}},
        {"backwards", {{80, 0}, {60, 40}, {59, 41}, {10, 40}}},
        {"two", {{0, 0}, {50, 50}}},
        {"one", {{3, 4}}},
    };
    for (const auto& [what, points] : rows) {
        const std::vector<QPointF> curve = chartdraw::smoothCurve(points);
        auto next = curve.begin();
        for (std::size_t i = 0; i < points.size(); ++i) {
            const auto found = std::find(next, curve.end(), points[i]);
            ASSERT_NE(found, curve.end()) << what << ", point " << i;
            for (auto p = next; i > 0 && p != found; ++p) {
                const auto [low, high] = std::minmax({points[i - 1].y(), points[i].y()});
                EXPECT_GE(p->y(), low - 1e-9) << what;
                EXPECT_LE(p->y(), high + 1e-9) << what;
            }
            next = found;
        }
    }
}

TEST(LineLayer, AllNineSymbolsShowFillAndEdgeInTheirSize) {
    for (int symbol = 0; symbol <= 10; ++symbol) {
        Chart chart;
        LineLayer* layer = line(chart, {50}, kNone);
        CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(layer), 0), symbol, 21, kGreen, kBlue, 1);
        const QImage image = chart.picture();
        if (symbol == 0 || symbol == 10) {
            EXPECT_EQ(inked(image, kWhite), 0) << symbol;
            continue;
        }
        EXPECT_EQ(at(image, 200, 130), kGreen) << symbol;
        const int outside = inked(image, kWhite) - inked(image.copy(QRect(186, 116, 29, 29)), kWhite);
        EXPECT_EQ(outside, 0) << symbol;
        int edge = 0;
        for (int y = 115; y < 146; ++y)
            for (int x = 185; x < 216; ++x)
                edge += qBlue(image.pixel(x, y)) > 150 && qGreen(image.pixel(x, y)) < 150 ? 1 : 0;
        EXPECT_GT(edge, 20) << symbol;
    }
}

/// A line that is drawn four times as large without smoothing, all of its points, and then made smaller: what
/// any way to draw it must come near to.
class WholeLine : public chartdraw::LineLayer {
public:
    using LineLayer::LineLayer;
    void draw(chartdraw::Canvas& canvas, const chartdraw::PlotFrame& frame) override {
        constexpr int kTimes = 4;
        QImage large(400 * kTimes, 300 * kTimes, QImage::Format_RGB32);
        large.fill(Qt::white);
        QPainter painter(&large);
        painter.scale(kTimes, kTimes);
        painter.translate(0.5, 0.5);
        painter.setClipRect(QRectF(frame.plot).adjusted(-1.5, -1.5, 0.5, 0.5));
        painter.setPen(QPen(Qt::black, lineWidth(), Qt::SolidLine, Qt::RoundCap));
        const std::span<const double> data = dataSets()[0]->data();
        for (std::size_t row = rows().begin + 1; row < rows().end; ++row)
            painter.drawLine(frame.point(xValue(row - 1), data[row - 1]), frame.point(xValue(row), data[row]));
        painter.end();
        canvas.painter().drawImage(QRect(0, 0, 400, 300),
                                   large.scaled(400, 300, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
};

template <class L> QImage longLine(const std::vector<double>& x, const std::vector<double>& y, int width) {
    Chart chart;
    auto* xy = chartdraw::object<chartdraw::XYChart>(chart.xy);
    auto* layer = xy->addLayer<L>(chartdraw::LineLayer::Form::Straight, 0);
    layer->addDataSet(y, 0, {});
    layer->setXData(x);
    layer->setLineWidth(width);
    return chart.picture();
}

/// Mean difference of the pixels of either line, in levels of grey.
double unlike(const QImage& a, const QImage& b) {
    double sum = 0;
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const int p = qRed(a.pixel(x, y)), q = qRed(b.pixel(x, y));
            if (p < 255 || q < 255) {
                sum += std::abs(p - q);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : 255;
}

// Where lines cross often the plain painter is some 20 levels off itself, as the rows of which all points are
// kept show.
TEST(LineLayer, LongLinesLookAsIfAllPointsWereDrawn) {
    std::mt19937 random(3);
    std::uniform_real_distribution<double> part(0, 1);
    const auto made = [](std::size_t count, const auto& value) {
        std::vector<double> values(count);
        for (std::size_t i = 0; i < count; ++i) values[i] = value(static_cast<double>(i) / static_cast<double>(count));
        return values;
    };
    const struct {
        const char* what;
        std::vector<double> x, y;
        double most;
    } rows[] = {
        {"noise", {}, made(6000, [&](double) { return 20 + 60 * part(random); }), 16},
        {"noise on a wave",
         {},
         made(12000, [&](double t) { return 50 + 30 * std::sin(t * 20) + 8 * part(random); }),
         16},
        {"a smooth wave", {}, made(6000, [](double t) { return 50 + 40 * std::sin(t * 30); }), 14},
        {"a steep zigzag", {}, made(3000, [](double t) { return 50 + 45 * std::sin(t * 900); }), 28},
        {"few rows a column", {}, made(1000, [&](double) { return 100 * part(random); }), 22},
        {"x in no order", made(5000, [&](double) { return part(random); }),
         made(5000, [&](double) { return 100 * part(random); }), 4},
        {"x backwards", made(6000, [](double t) { return 1 - t; }),
         made(6000, [&](double t) { return 50 + 30 * t * part(random); }), 14},
    };
    for (const auto& row : rows) {
        for (const int width : {1, 3}) {
            const double difference =
                unlike(longLine<chartdraw::LineLayer>(row.x, row.y, width), longLine<WholeLine>(row.x, row.y, width));
            EXPECT_LE(difference, row.most) << row.what << ", width " << width;
        }
    }
}
} // namespace
