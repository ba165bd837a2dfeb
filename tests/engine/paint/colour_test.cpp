#include "tests/engine/paint/pixels.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <thread>

namespace chartdraw {
namespace {
using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

// Machado, Oliveira and Fernandes, "A Physiologically-based Model for Simulation of Color Vision Deficiency"
// (2009), severity 1.0, on linear RGB: normal, protanopia, deuteranopia, tritanopia.
constexpr std::array<Matrix, 4> kVisions = {
    {{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
     {{{0.152286, 1.052583, -0.204868}, {0.114503, 0.786281, 0.099216}, {-0.003882, -0.048116, 1.051998}}},
     {{{0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}}},
     {{{1.255528, -0.076749, -0.178779}, {-0.078411, 0.930809, 0.147602}, {0.004733, 0.691367, 0.303900}}}}};

// IEC 61966-2-1: sRGB to linear, and to XYZ (D65).
constexpr Matrix kXyz = {{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}};

Triple times(const Matrix& matrix, const Triple& v) {
    Triple result{};
    for (std::size_t i = 0; i < 3; ++i) result[i] = matrix[i][0] * v[0] + matrix[i][1] * v[1] + matrix[i][2] * v[2];
    return result;
}

Triple linear(const QColor& colour) {
    Triple result = {colour.red() / 255.0, colour.green() / 255.0, colour.blue() / 255.0};
    for (double& c : result) c = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    return result;
}

Triple lab(const QColor& colour, const Matrix& vision) {
    Triple seen = times(vision, linear(colour));
    for (double& c : seen) c = std::clamp(c, 0.0, 1.0);
    const Triple xyz = times(kXyz, seen);
    const auto f = [](double t) { return t > 0.008856 ? std::cbrt(t) : 7.787 * t + 16.0 / 116; };
    const double x = f(xyz[0] / 0.95047);
    const double y = f(xyz[1]);
    const double z = f(xyz[2] / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

double distance(const QColor& a, const QColor& b, const Matrix& vision) {
    const Triple p = lab(a, vision);
    const Triple q = lab(b, vision);
    return std::hypot(p[0] - q[0], p[1] - q[1], p[2] - q[2]);
}

// WCAG 2.1's contrast of two relative luminances.
double contrast(const QColor& a, const QColor& b) {
    const double p = times(kXyz, linear(a))[1] + 0.05;
    const double q = times(kXyz, linear(b))[1] + 0.05;
    return std::max(p, q) / std::min(p, q);
}

TEST(Palette, FixedEntries) {
    const ColourTable table;
    EXPECT_EQS((table.solid(kBackgroundColour), QColor(Qt::white)), (table.solid(kLineColour), QColor(Qt::black)),
               (table.solid(kTextColour), QColor(Qt::black)), (seriesColour(0), kDataColour),
               (seriesColour(32), kDataColour), (seriesColour(-1), kDataColour), (seriesColour(31), 0xffff0027));
}

TEST(Palette, SeriesAreToldApartByEveryEye) {
    const ColourTable table;
    for (const Matrix& vision : kVisions) {
        for (int i = 0; i < 32; ++i) {
            const QColor colour = table.solid(seriesColour(i));
            EXPECT_GT(distance(colour, table.solid(seriesColour(i + 1)), vision), 20) << i;
            EXPECT_GT(distance(colour, Qt::white, vision), 20) << i;
            for (int j = 0; i < 8 && j < i; ++j)
                EXPECT_GT(distance(colour, table.solid(seriesColour(j)), vision), 18) << i << ' ' << j;
            for (int j = 0; j < i; ++j)
                EXPECT_GT(distance(colour, table.solid(seriesColour(j)), kVisions[0]), 12) << i << ' ' << j;
        }
    }
}

TEST(Palette, SeriesCarryBlackTextAndShowOnWhite) {
    const ColourTable table;
    for (int i = 0; i < 32; ++i) {
        const QColor colour = table.solid(seriesColour(i));
        EXPECT_GE(contrast(colour, Qt::black), 4.5) << i; // the least for small text
        EXPECT_GE(contrast(colour, Qt::white), 1.7) << i;
    }
}

TEST(Colour, UnknownSymbolsAreInvisible) {
    const ColourTable table;
    for (const Colour colour : {kTransparent, kDefaultColour, 0xffff0028u, 0xfffffffeu, 0xff123456u, 0xff400000u,
                                0xff7fffffu, 0xff80ffffu, 0xff900000u, 0xff000001u}) {
        EXPECT_TRUE(table.invisible(colour)) << std::hex << colour;
        EXPECT_EQ(table.solid(colour).alpha(), 0);
        EXPECT_EQ(table.brush(colour, QRectF(0, 0, 9, 9)).style(), Qt::NoBrush);
    }
    EXPECT_EQS((table.invisible(0xfe000000), false), (table.solid(0xfe010203), QColor(1, 2, 3, 1)));
}

TEST(Metal, TokensAreInternedAndMeanTheSameEverywhere) {
    const Colour token = metalColour(0xc0c0c0, 90);
    EXPECT_EQS((metalColour(0xc0c0c0, 450), token), (metalColour(0xc0c0c0, -270), token));
    EXPECT_NE(metalColour(0xc0c0c0, 0), token);
    EXPECT_NE(metalColour(0xc0c0c1, 90), token);
    EXPECT_EQ(metalColour(token, 90), token); // the metal of a metal is one of its base
    EXPECT_EQS((ColourTable().solid(token), QColor(0xc0, 0xc0, 0xc0)),
               (ColourTable().solid(metalColour(kDataColour, 0)), ColourTable().solid(kDataColour)),
               (ColourTable().invisible(metalColour(kTransparent, 0)), true));
}

TEST(Metal, BandsRunAlongTheAngleAndNotAcross) {
    for (const int angle : {0, 90, 180}) {
        const QImage image =
            drawn(100, 100, [&](Canvas& on) { on.fillRect(QRectF(0, 0, 100, 100), metalColour(0x808080, angle)); });
        int turns = 0;
        int last = 0;
        for (int i = 1; i < 100; ++i) {
            const auto at = [&](int step) { return angle == 90 ? image.pixel(50, step) : image.pixel(step, 50); };
            EXPECT_EQ(at(i), angle == 90 ? image.pixel(3, i) : image.pixel(i, 3)); // even across
            const int slope = qRed(at(i)) - qRed(at(i - 1));
            turns += slope * last < 0 ? 1 : 0;
            last = slope != 0 ? slope : last;
        }
        EXPECT_GE(turns, 4); // at least two bands of light between darker ones
    }
    // A slant changes both ways, and spans the shape from corner to corner.
    const QImage slant =
        drawn(100, 100, [](Canvas& on) { on.fillRect(QRectF(0, 0, 100, 100), metalColour(0x808080, 45)); });
    EXPECT_EQ(slant.pixel(20, 40), slant.pixel(40, 20));
    EXPECT_NE(slant.pixel(20, 20), slant.pixel(40, 40));
    // Half a base lets half of the paper through: 0x80 over white is nowhere below 128.
    const QImage half =
        drawn(50, 50, [](Canvas& on) { on.fillRect(QRectF(0, 0, 50, 50), metalColour(0x80000000, 0)); });
    EXPECT_EQ(inked(half), QRect(0, 0, 50, 50));
    EXPECT_GE(qRed(half.pixel(25, 25)), 127);
}

TEST(Metal, InterningIsGuardedAndBounded) {
    std::vector<std::thread> threads;
    std::array<std::vector<Colour>, 4> tokens;
    for (auto& mine : tokens) {
        threads.emplace_back([&mine] {
            const ColourTable table;
            for (int i = 0; i < 20'000; ++i) {
                mine.push_back(metalColour(static_cast<Colour>(i), 7));
                EXPECT_EQ(table.solid(mine.back()).rgb(), 0xff000000u + static_cast<QRgb>(i));
            }
        });
    }
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQS((tokens[0], tokens[3]), (std::set<Colour>(tokens[0].begin(), tokens[0].end()).size(), 20'000U));
    for (Colour i = 0; i < 100'000; ++i) EXPECT_EQ(ColourTable().solid(metalColour(i, 8)).rgb(), 0xff000000u + i);
}

QImage quarters() {
    QImage tile(4, 4, QImage::Format_RGB32);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            tile.setPixel(x, y, x == 0 && y == 0 ? 0xffff0000 : x < 2 ? 0xff000000 : 0xff0000ff);
    return tile;
}

TEST(Pattern, TilesFromItsOrigin) {
    ColourTable table;
    const Colour token = table.addPattern(quarters(), 3, 1);
    const QImage image = drawn(
        16, 16, [&](Canvas& on) { on.fillRect(QRectF(2, 0, 12, 16), token); }, kWhite, table);
    for (int y = 0; y < 16; ++y) {
        for (int x = 2; x < 14; ++x) {
            const bool first = (x - 3 + 16) % 4 == 0 && (y - 1 + 16) % 4 == 0;
            EXPECT_EQ(image.pixel(x, y) == 0xffff0000, first) << x << ' ' << y;
        }
    }
    EXPECT_EQ(inked(image), QRect(2, 0, 12, 16));
    // One red, seven black, eight blue of sixteen: 255 / 16 and 255 / 2, rounded.
    EXPECT_EQ(table.solid(token), QColor(16, 0, 128));
}

TEST(Pattern, BelongsToItsChart) {
    ColourTable mine;
    ColourTable other;
    const Colour token = mine.addPattern(quarters(), 0, 0);
    other.addPattern(quarters(), 0, 0);
    EXPECT_EQS((mine.invisible(token), false), (other.invisible(token), true),
               (mine.addPattern({}, 0, 0), kTransparent));
    QImage clear(3, 3, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    EXPECT_TRUE(mine.invisible(mine.addPattern(clear, 0, 0)));
}
} // namespace
} // namespace chartdraw
