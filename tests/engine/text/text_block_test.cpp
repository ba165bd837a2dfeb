#include "tests/engine/text/ink.h"
#include <QTransform>
#include <cmath>

namespace chartdraw {
namespace {
const FontSet kFonts;

QSize boxOf(const TextLook& look, std::string_view text) { return TextBlock(look, text, kFonts).boxSize(); }

TextLook sized(double points, int width = 0, int height = 0, double angle = 0) {
    TextLook look;
    look.size = points;
    look.width = width;
    look.height = height;
    look.angle = angle;
    return look;
}

const int kAllAlignments[] = {TopLeft, TopCenter, TopRight, Left, Center, Right, BottomLeft, BottomCenter, BottomRight};
} // namespace

TEST(TextBlock, LinesStackAndTheLongestSetsTheWidth) {
    const TextLook look = sized(10);
    const QSize one = boxOf(look, "Longest line");
    EXPECT_EQS((boxOf(look, "a\nLongest line\nb"), QSize(one.width(), 3 * one.height())),
               (boxOf(look, "a<*br*>Longest line"), QSize(one.width(), 2 * one.height())),
               (boxOf(look, "Longest line\n"), QSize(one.width(), 2 * one.height())), (boxOf(look, ""), QSize(0, 0)));
    EXPECT_GT(boxOf(look, "a ").width(), boxOf(look, "a").width());
    EXPECT_EQS((TextBlock(look, " \n", kFonts).empty(), true), (TextBlock(look, " x", kFonts).empty(), false));
}

TEST(TextBlock, MarkupChangesMeasures) {
    const TextLook look = sized(10);
    const QSize plain = boxOf(look, "Text");
    EXPECT_EQS((boxOf(look, "Te<*color=ff0000*>xt"), plain), (boxOf(look, "<*size=20*>Text"), boxOf(sized(20), "Text")),
               (boxOf(look, "<*size=20*>T<*/*>ext").height(), boxOf(sized(20), "Text").height()));
    TextLook bold = look;
    bold.font = "bold";
    EXPECT_EQ(boxOf(look, "<*font=bold*>Text"), boxOf(bold, "Text"));
    EXPECT_LT(boxOf(look, "x<*super*>Text").width(), boxOf(look, "xText").width());
    EXPECT_GE(boxOf(look, "x<*sub*>Text").height(), plain.height());
}

TEST(TextBlock, MarkupShows) {
    TextLook look = sized(20);
    look.colour = 0x000000;
    const QRect plain = ink(drawn(look, "xx"));
    const QRect super = ink(drawn(look, "x<*super*>x")), sub = ink(drawn(look, "x<*sub*>x"));
    EXPECT_LT(super.top(), plain.top());
    EXPECT_GT(sub.height(), plain.height());
    // The underline of a text without descenders is what lies below the base line, as wide as the text.
    const QImage underlined = drawn(look, "<*underline*>xx");
    const QRect line = ink(underlined.copy(0, plain.bottom() + 2, underlined.width(), 30));
    EXPECT_NEAR(line.width(), boxOf(look, "xx").width(), 1);
    EXPECT_LE(line.height(), 3);
    // The right half red, the left half black.
    const QImage twoColours = drawn(look, "HH<*color=ff0000*>HH");
    int red = 0, black = 0;
    for (int y = 0; y < twoColours.height(); ++y) {
        for (int x = 0; x < twoColours.width(); ++x) {
            const QRgb pixel = twoColours.pixel(x, y);
            red += pixel == 0xffff0000;
            black += pixel == 0xff000000;
            EXPECT_EQ(qRed(pixel), x < twoColours.width() / 2 ? qGreen(pixel) : 255);
        }
    }
    EXPECT_GT(red, 50);
    EXPECT_NEAR(red, black, black / 2.0);
}

TEST(TextBlock, OneTextInManyLooksIsNeverThatOfAnother) {
    std::vector<std::pair<TextLook, FontSet>> looks(10);
    looks[1].first.size = 9;
    looks[2].first.font = "bold";
    looks[3].first.widthSize = 12;
    looks[4].first.colour = 0xff0000;
    looks[5].first.vertical = true;
    looks[6].first.alignment = Right;
    looks[7].first.wrapWidth = 20;
    looks[8].second.smooth = false;
    looks[9].second.files[1] = "LiberationSerif-Regular.ttf";
    std::vector<QImage> first;
    for (int round = 0; round < 2; ++round) {
        for (std::size_t i = 0; i < looks.size(); ++i) {
            const auto& [look, fonts] = looks[i];
            const QImage now = drawn(look, "long line of\n<*font=bold*>text", Center, false, fonts);
            if (round == 1)
                EXPECT_EQ(now, first[i]) << i;
            else
                EXPECT_EQ(std::count(first.begin(), first.end(), now), 0) << i;
            first.push_back(now);
        }
    }
}

TEST(TextBlock, AlignmentInAFixedBox) {
    TextLook look = sized(12, 120, 80);
    look.setMargins(10, 20, 5, 15);
    EXPECT_EQ(boxOf(look, "HH"), QSize(120, 80));
    const QSize text = boxOf(sized(12), "HH");
    const QRect inText = ink(drawn(sized(12), "HH", TopLeft)).translated(-150, -100);
    for (const int alignment : kAllAlignments) {
        look.alignment = alignment;
        const QRect seen = ink(drawn(look, "HH", TopLeft)).translated(-150, -100);
        // Room for the text: 90 by 60 pixels from (10, 5).
        const int x = 10 + (90 - text.width()) * (horizontalOf(alignment) + 1) / 2;
        const int y = 5 + (60 - text.height()) * (verticalOf(alignment) + 1) / 2;
        EXPECT_EQ(seen, inText.translated(x, y)) << alignment;
    }
    // The lines of a text follow the column of the alignment too.
    look = sized(12);
    for (const int alignment : {Left, Center, Right}) {
        look.alignment = alignment;
        const QImage image = drawn(look, "HHHHHHHH\nH", TopLeft);
        const int lineHeight = boxOf(look, "H").height();
        const QRect first = ink(image.copy(0, 0, 300, 100 + lineHeight));
        const QRect second = ink(image.copy(0, 100 + lineHeight, 300, lineHeight));
        const auto place = [&](const QRect& line) {
            return alignment == Left ? line.left() : alignment == Right ? line.right() : line.center().x();
        };
        EXPECT_NEAR(place(first), place(second), alignment == Left ? 0 : 1);
    }
}

TEST(TextBlock, MarginsAndBox) {
    TextLook look = sized(10);
    const QSize bare = boxOf(look, "Text");
    look.setMargins(3, 4, 5, 6);
    EXPECT_EQ(boxOf(look, "Text"), bare + QSize(7, 11));
    look.background = 0xffff00;
    look.edge = 0x0000ff;
    const QImage image = drawn(look, "Text", TopLeft);
    const QRect box(QPoint(150, 100), bare + QSize(7, 11));
    EXPECT_EQ(ink(image), box);
    for (const QPoint corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
        EXPECT_EQ(image.pixel(corner), 0xff0000ff);
    EXPECT_EQ(image.pixel(box.topLeft() + QPoint(1, 1)), 0xffffff00);
    // Margins without sense leave no box.
    look.setMargins(-1'000'000'000, INT_MIN, INT_MAX, INT_MAX);
    EXPECT_GE(boxOf(look, "Text").width(), 0);
    drawn(look, "Text");
}

TEST(TextBlock, WrapsAtWords) {
    TextLook look = sized(10);
    const int lineHeight = boxOf(look, "x").height();
    look.wrapWidth = boxOf(look, "several words").width();
    EXPECT_EQ(boxOf(look, "several words").height(), lineHeight);
    EXPECT_EQ(boxOf(look, "several words several words several").height(), 3 * lineHeight);
    EXPECT_LE(boxOf(look, "many words that go on and on").width(), look.wrapWidth);
    EXPECT_EQ(boxOf(look, "averyveryverylongsingleword").height(), lineHeight);
    EXPECT_EQ(boxOf(look, "several <*color=ff*>words<*/*> several words").height(), 2 * lineHeight);
}

TEST(TextBlock, BoundsOfTurnedBoxes) {
    TextLook look = sized(10, 100, 20);
    const double r = std::sqrt(0.5);
    const double wide = 100 * std::sqrt(0.75) + 10, high = 50 + 20 * std::sqrt(0.75); // at 30 degrees, worked by hand
    const std::tuple<double, double, double> cases[] = {
        {0, 100, 20},   {90, 20, 100},      {180, 100, 20},         {-90, 20, 100},          {450, 20, 100},
        {360, 100, 20}, {-360, 100, 20},    {45, 120 * r, 120 * r}, {-45, 120 * r, 120 * r}, {30, wide, high},
        {NAN, 100, 20}, {INFINITY, 100, 20}};
    for (const auto& [angle, width, height] : cases) {
        look.angle = angle;
        const TextBlock block(look, "Text", kFonts);
        EXPECT_EQ(block.boxSize(), QSize(100, 20));
        EXPECT_EQ(block.size(), QSize(qCeil(width), qCeil(height))) << angle;
    }
    look.angle = 90;
    const TextBlock block(look, "Text", kFonts);
    EXPECT_EQS((block.boundsAt({50, 60}, TopLeft), QRectF(50, 60, 20, 100)),
               (block.boundsAt({50, 60}, BottomCenter), QRectF(40, -40, 20, 100)),
               (block.boundsAt({50, 60}, TopRight2), QRectF(30, 60, 20, 100)),
               (block.boundsAt({50, 60}, 99), QRectF(40, 10, 20, 100)));
}

TEST(TextBlock, DrawsInsideItsBounds) {
    for (const double angle : {0.0, 17.0, 45.0, 90.0, 135.0, 180.0, 222.0, 270.0, 315.0}) {
        for (const bool vertical : {false, true}) {
            for (const int alignment : kAllAlignments) {
                TextLook look = sized(9, 0, 0, angle);
                look.vertical = vertical;
                look.background = 0xe0e0ff;
                const TextBlock block(look, "Turned", kFonts);
                const QRectF bounds = block.boundsAt({150, 100}, alignment);
                const QRect seen = ink(drawn(look, "Turned", alignment));
                EXPECT_TRUE(bounds.contains(QRectF(seen))) << angle << ' ' << alignment;
                EXPECT_NEAR(seen.width(), bounds.width(), 2) << angle;
                EXPECT_NEAR(seen.height(), bounds.height(), 2) << angle;
            }
        }
    }
}

TEST(TextBlock, QuarterTurnsAreAsSharpAsUprightText) {
    TextLook look = sized(8);
    const QImage upright = drawn(look, "Sharp 8pt text", TopLeft);
    const QSize size = boxOf(look, "Sharp 8pt text");
    for (const int quarters : {1, 2, 3}) {
        look.angle = 90 * quarters;
        const QImage turned = drawn(look, "Sharp 8pt text", TopLeft);
        const QSize turnedSize = quarters % 2 ? size.transposed() : size;
        // Turned back clockwise it is the upright picture to the pixel.
        const QImage back = turned.copy(QRect({150, 100}, turnedSize)).transformed(QTransform().rotate(90 * quarters));
        EXPECT_EQ(back, upright.copy(QRect({150, 100}, size))) << quarters;
    }
}

TEST(TextBlock, CounterClockwiseReading) {
    // "MMM..." has its darkest letters first. Read upwards at 90 degrees, so they stand at the bottom.
    const QImage image = drawn(sized(12, 0, 0, 90), "MMM...");
    EXPECT_GT(darkness(image.copy(0, ink(image).center().y(), 300, 200)), 0.8 * darkness(image));
}

TEST(TextBlock, PivotKeepsItsPointOnTheAnchor) {
    TextLook look = sized(9, 60, 20, 30);
    const TextBlock block(look, "Label", kFonts);
    const QPointF anchor(150.5, 100.25);
    // Corners clockwise from the top left of the upright box.
    const QPolygonF byRight = block.pivotOutlineAt(anchor, TopRight);
    EXPECT_NEAR(QLineF(byRight[1], anchor).length(), 0, 1e-9);
    EXPECT_NEAR(byRight[0].x(), anchor.x() - 60 * std::cos(M_PI / 6), 1e-9);
    EXPECT_NEAR(byRight[0].y(), anchor.y() + 60 * std::sin(M_PI / 6), 1e-9);
    const QPolygonF byLeft = block.pivotOutlineAt(anchor, Left);
    EXPECT_NEAR(QLineF((byLeft[0] + byLeft[3]) / 2, anchor).length(), 0, 1e-9);
    EXPECT_EQ(block.pivotBoundsAt(anchor, Left), byLeft.boundingRect());
    const QRect seen = ink(drawn(look, "Label", TopRight, true));
    EXPECT_TRUE(block.pivotBoundsAt({150, 100}, TopRight).toAlignedRect().contains(seen));
    // Upright it is the same as without a pivot.
    look.angle = 0;
    EXPECT_EQ(drawn(look, "Label", BottomRight, true), drawn(look, "Label", BottomRight));
    EXPECT_EQ(TextBlock(look, "Label", kFonts).pivotBoundsAt({10.4, 20.6}, TopLeft), QRectF(10, 21, 60, 20));
}

TEST(TextBlock, StackedLetters) {
    TextLook look = sized(12);
    const QSize letter = boxOf(look, "W");
    look.vertical = true;
    EXPECT_EQ(boxOf(look, "WWWW"), QSize(letter.width(), 4 * letter.height()));
    // A letter and its accent share a place.
    EXPECT_LT(boxOf(look, "We\u0301").height(), 3 * letter.height());
    EXPECT_GT(boxOf(look, "WW\nWWW").width(), 2 * letter.width());
    EXPECT_EQ(boxOf(look, "WW\nWWW").height(), 3 * letter.height());
    const QImage image = drawn(look, "WI", TopLeft);
    const QRect wide = ink(image.copy(0, 0, 300, 100 + letter.height()));
    const QRect narrow = ink(image.copy(0, 100 + letter.height(), 300, letter.height()));
    EXPECT_NEAR(wide.center().x(), narrow.center().x(), 1);
    // Ideographs stay upright: a stacked one is drawn as a lone one is.
    TextLook flat = sized(12);
    const QImage stacked = drawn(look, "\u6f22\u6f22", TopLeft);
    EXPECT_EQ(stacked.copy(150, 100, 30, 20), drawn(flat, "\u6f22", TopLeft).copy(150, 100, 30, 20));
}
} // namespace chartdraw
