#include "engine/xy/curves.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace chartdraw {

namespace {

constexpr double kPieceLength = 3; // pixels of a curve between its straight pieces
constexpr double kMostPieces = 200;
constexpr QPointF kGap(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN());

/// What the points of a run are a function of: x where it only ascends or only descends, else the length of
/// the way along them.
std::vector<double> parameters(std::span<const QPointF> run) {
    std::vector<double> result(run.size());
    bool ascends = true, descends = true;
    for (std::size_t i = 1; i < run.size(); ++i) {
        ascends = ascends && run[i].x() > run[i - 1].x();
        descends = descends && run[i].x() < run[i - 1].x();
    }
    for (std::size_t i = 1; i < run.size(); ++i) {
        const QPointF step = run[i] - run[i - 1];
        result[i] =
            result[i - 1] + (ascends || descends ? std::abs(step.x()) : std::hypot(step.x(), step.y()));
    }
    return result;
}

/// Slopes at the points by Fritsch and Carlson: the harmonic mean of those of the two neighbours, 0 at a
/// turn.
std::vector<double> slopes(std::span<const double> t, std::span<const double> v) {
    const std::size_t count = v.size();
    std::vector<double> secants(count - 1), result(count);
    for (std::size_t i = 0; i + 1 < count; ++i)
        secants[i] = t[i + 1] > t[i] ? (v[i + 1] - v[i]) / (t[i + 1] - t[i]) : 0;
    for (std::size_t i = 1; i + 1 < count; ++i) {
        const double left = secants[i - 1], right = secants[i];
        if (left * right > 0) {
            const double a = 2 * (t[i + 1] - t[i]) + (t[i] - t[i - 1]);
            const double b = (t[i + 1] - t[i]) + 2 * (t[i] - t[i - 1]);
            result[i] = (a + b) / (a / left + b / right);
        }
    }
    // At the ends a parabola through the next point, held to what keeps the first piece without a turn.
    const auto atEnd = [](double near, double inner) {
        const double slope = (3 * near - inner) / 2;
        return slope * near <= 0 ? 0 : std::copysign(std::min(std::abs(slope), 3 * std::abs(near)), near);
    };
    result.front() = count > 2 ? atEnd(secants[0], result[1]) : secants[0];
    result.back() = count > 2 ? atEnd(secants[count - 2], result[count - 2]) : secants[0];
    return result;
}

struct Hermite {
    double v0, v1, m0, m1;
    double at(double u) const {
        const double w = 1 - u;
        return v0 * (1 + 2 * u) * w * w + v1 * (3 - 2 * u) * u * u + u * w * (m0 * w - m1 * u);
    }
};

void appendSmooth(std::vector<QPointF>& curve, std::span<const QPointF> run) {
    curve.push_back(run.front());
    if (run.size() < 2)
        return;
    std::vector<double> x(run.size()), y(run.size());
    for (std::size_t i = 0; i < run.size(); ++i) {
        x[i] = run[i].x();
        y[i] = run[i].y();
    }
    const std::vector<double> t = parameters(run);
    const std::vector<double> dx = slopes(t, x), dy = slopes(t, y);
    for (std::size_t i = 0; i + 1 < run.size(); ++i) {
        const double length = std::hypot(x[i + 1] - x[i], y[i + 1] - y[i]);
        const int pieces = static_cast<int>(std::clamp(length / kPieceLength, 1.0, kMostPieces));
        const double span = t[i + 1] - t[i];
        const Hermite alongX{x[i], x[i + 1], dx[i] * span, dx[i + 1] * span};
        const Hermite alongY{y[i], y[i + 1], dy[i] * span, dy[i + 1] * span};
        for (int k = 1; k < pieces; ++k) {
            const double u = static_cast<double>(k) / pieces;
            curve.emplace_back(alongX.at(u), alongY.at(u));
        }
        curve.push_back(run[i + 1]);
    }
}

} // namespace

std::vector<QPointF> smoothCurve(std::span<const QPointF> points) {
    std::vector<QPointF> curve;
    forEachRun(points, [&](std::span<const QPointF> run) {
        if (!curve.empty())
            curve.push_back(kGap);
        appendSmooth(curve, run);
    });
    return curve;
}

std::vector<QPointF> steps(std::span<const QPointF> points) {
    const auto whole = [](QPointF p) { return QPointF(std::floor(p.x() + 0.5), std::floor(p.y() + 0.5)); };
    std::vector<QPointF> result;
    for (const QPointF& point : points) {
        const QPointF next = whole(point);
        if (!result.empty() && next.x() == next.x() && result.back().x() == result.back().x())
            result.emplace_back(next.x(), result.back().y());
        result.push_back(next);
    }
    return result;
}

void snapLevels(std::span<QPointF> points) {
    bool level = false;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const bool nextLevel = i + 1 < points.size() && points[i].y() == points[i + 1].y();
        if (level || nextLevel)
            points[i].setY(std::floor(points[i].y() + 0.5));
        level = nextLevel;
    }
}

} // namespace chartdraw
