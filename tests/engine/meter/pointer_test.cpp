#include "engine/meter/meter_pointer.h"
#include <gtest/gtest.h>

using chartdraw::pointerOutline;
using chartdraw::PointerShape;

namespace {
constexpr PointerShape kShapes[] = {PointerShape::Diamond, PointerShape::Triangular, PointerShape::Arrow,
                                    PointerShape::Arrow2,  PointerShape::Line,       PointerShape::Pencil};

/// How broad the outline is at a height, measured in steps of a tenth.
double breadthAt(const QPainterPath& path, double y) {
    int inside = 0;
    for (int i = -300; i <= 300; ++i) inside += path.contains(QPointF(i / 10.0 + 0.01, y)) ? 1 : 0;
    return inside / 10.0;
}

TEST(PointerOutline, ReachesFromTipToTailAndIsSymmetric) {
    for (const PointerShape shape : kShapes) {
        for (const double tail : {0.0, 15.0}) {
            const QRectF bounds = pointerOutline(shape, 100, tail, 20).boundingRect();
            EXPECT_DOUBLE_EQ(bounds.top(), -100);
            EXPECT_DOUBLE_EQ(bounds.bottom(), tail);
            EXPECT_DOUBLE_EQ(bounds.left(), -bounds.right());
            EXPECT_LE(bounds.width(), 20 + 1e-9);
        }
    }
}

TEST(PointerOutline, HasTheShapeThatItsNameSays) {
    // breadth of a pointer of length 100, tail 10, width 20
    const std::tuple<const char*, PointerShape, double, double, double> rows[] = {
        {"diamond widest at the middle", PointerShape::Diamond, 0, 19, 20},
        {"diamond half as wide halfway", PointerShape::Diamond, -50, 9, 11},
        {"triangle widest at its end", PointerShape::Triangular, 9.9, 19, 20},
        {"triangle at the tip", PointerShape::Triangular, -95, 0, 2},
        {"arrow's shaft is thin", PointerShape::Arrow, -40, 3, 7},
        {"arrow's head is wide", PointerShape::Arrow, -73, 17, 20},
        {"the second arrow before its notch", PointerShape::Arrow2, -83, 11, 13},
        {"line is the same throughout", PointerShape::Line, -1, 1, 4},
        {"line to its tip", PointerShape::Line, -99, 1, 4},
        {"pencil's body", PointerShape::Pencil, -10, 8, 10},
        {"pencil near its tip", PointerShape::Pencil, -97, 0, 2},
    };
    for (const auto& [what, shape, y, least, most] : rows) {
        const double breadth = breadthAt(pointerOutline(shape, 100, 10, 20), y);
        EXPECT_GE(breadth, least) << what;
        EXPECT_LE(breadth, most) << what;
    }
    // The barbs of the second arrow reach back behind the notch in which its shaft ends.
    const QPainterPath barbed = pointerOutline(PointerShape::Arrow2, 100, 10, 20);
    EXPECT_DOUBLE_EQ(barbed.boundingRect().width(), 20);
    EXPECT_FALSE(barbed.contains(QPointF(5, -73)));
    EXPECT_TRUE(pointerOutline(PointerShape::Arrow, 100, 10, 20).contains(QPointF(5, -73)));
    // Without a tail a diamond lies across a bar, widest halfway.
    EXPECT_GE(breadthAt(pointerOutline(PointerShape::Diamond, 100, 0, 20), -50), 19);
}
} // namespace
