#include "editors/colour/grid_geometry.h"
#include "editors/colour/spectrum_geometry.h"
#include "tests/expect.h"

namespace {
constexpr GridShape kPalette{.columns = 8, .rows = 5};
constexpr GridShape kCustom{.columns = 3, .rows = 6};
} // namespace

TEST(GridGeometry, CellsAreCutToWholePixels) {
    // Worked by hand: (203 - 4 - 35) / 8 = 20.5, (100 - 4 - 20) / 5 = 15.2.
    const QSize grid(203, 100);
    EXPECT_EQS((kPalette.Cell(grid), QSize(20, 15)), (kPalette.CellRect(0, grid), QRect(2, 2, 20, 15)),
               (kPalette.CellRect(7, grid), QRect(177, 2, 20, 15)),
               (kPalette.CellRect(39, grid), QRect(177, 82, 20, 15)));
    // (100 - 4 - 10) / 3 = 28.7, (150 - 4 - 25) / 6 = 20.2.
    EXPECT_EQ(kCustom.CellRect(17, QSize(100, 150)), QRect(68, 127, 28, 20));
}

TEST(GridGeometry, HitsCellsButNoGaps) {
    const QSize grid(203, 100);
    for (int i = 0; i < kPalette.Count(); ++i) {
        const QRect cell = kPalette.CellRect(i, grid);
        EXPECT_EQS((kPalette.HitTest(cell.topLeft(), grid), i), (kPalette.HitTest(cell.bottomRight(), grid), i),
                   (kPalette.HitTest(cell.bottomRight() + QPoint(1, 0), grid), -1),
                   (kPalette.HitTest(cell.bottomRight() + QPoint(0, 1), grid), -1),
                   (kPalette.HitTest(cell.topLeft() - QPoint(1, 0), grid), -1),
                   (kPalette.HitTest(cell.topLeft() - QPoint(0, 1), grid), -1));
    }
    // Where a ninth column and a sixth row would be.
    EXPECT_EQS((kPalette.HitTest({205, 5}, {400, 100}), 4), (kPalette.HitTest({202, 5}, grid), -1),
               (kPalette.HitTest({5, 102}, grid), -1), (kPalette.HitTest({-1, 5}, grid), -1));
    for (const QSize none : {QSize(0, 0), QSize(10, 100), QSize(-5, -5)})
        for (int x = -3; x < 50; ++x) EXPECT_EQ(kPalette.HitTest({x, 5}, none), -1);
}

TEST(SpectrumGeometry, KeepsToTheScalesAtAnySize) {
    for (const QSize size : {QSize(0, 0), QSize(36, 15), QSize(37, 16), QSize(35, 14), QSize(1, 300), QSize(150, 90)}) {
        const SpectrumGeometry geometry(size);
        for (int at = -20; at < 320; ++at) {
            EXPECT_EQS((geometry.HueAt(at) >= 0 && geometry.HueAt(at) <= 239, true),
                       (geometry.SatAt(at) >= 0 && geometry.SatAt(at) <= 240, true),
                       (geometry.LumAt(at) >= 0 && geometry.LumAt(at) <= 240, true));
        }
        for (int step = 0; step <= 239; ++step) {
            const QPoint at = geometry.Crosshair({.hue = step, .sat = step, .lum = 0});
            EXPECT_TRUE(geometry.spectrum.isEmpty() || geometry.spectrum.contains(at));
        }
    }
}
