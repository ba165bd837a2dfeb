// The samples of the pickers, by their pixels, and what becomes of a finished picture.

#include "render/chart_holder.h"
#include "render/samples.h"
#include "render/utf8_text.h"
#include "tests/render/calls.h"
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {
TEST(ColorSample, ShowsAGeneralColourOverAChequerBoardAndAPatternOverBlack) {
    PreviewFake view;
    view.m_sampleColor.m_color = 0x800000ff; // half transparent blue
    DrawColorSample(view);
    EXPECT_TRUE(view.m_picture.Empty());
    // Blue at half strength over white is 7f7fff, over black 00007f; squares are 5 pixels a side.
    for (int y = 0; y < 61; ++y)
        for (int x = 0; x < 120; ++x) {
            const bool white = (x / 5 + y / 5) % 2 == 0;
            const QRgb pixel = view.m_painted.pixel(x, y);
            ASSERT_NEAR(qRed(pixel), white ? 0x7f : 0, 1) << x << ',' << y;
            ASSERT_NEAR(qBlue(pixel), white ? 0xff : 0x7f, 1) << x << ',' << y;
        }
    view.m_sampleColor.m_type = 1;
    view.m_sampleColor.m_patternFile = "no such.png";
    DrawColorSample(view);
    EXPECT_EQ(view.m_painted.pixel(60, 30), 0xff000000);
}

TEST(FontSample, ShowsTheFaceNameCentredFromTopToBottom) {
    PreviewFake view;
    view.m_sampleFont.m_faceName = "Liberation Sans";
    view.m_sampleFont.m_fileName = "LiberationSans-Regular.ttf";
    view.m_sampleFont.m_size = 10;
    EXPECT_THAT(callsOf(DrawFontSample, view),
                testing::HasSubstr("\"Liberation Sans\", \"LiberationSans-Regular.ttf\", 10, 0, "));
    QRect ink;
    for (int y = 0; y < 61; ++y)
        for (int x = 0; x < 120; ++x)
            if (qGray(view.m_painted.pixel(x, y)) < 0x80) ink |= QRect(x, y, 1, 1);
    EXPECT_NEAR(ink.center().y(), 30, 3);
    EXPECT_LE(ink.left(), 3);
    EXPECT_GT(ink.width(), 60);
}

TEST(ImageSample, TakesTheImagesSizeAndGoesIntoFitMode) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("g\xc3\xbcnstig.png");
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(0xff123456);
    ASSERT_TRUE(image.save(path));
    PreviewFake view;
    view.m_fitMode = false;
    view.m_sampleImage = path.toUtf8().constData();
    DrawImageSample(view);
    EXPECT_EQS((view.m_fitMode, true), (pictureOf(view), image), (view.m_scrollSizesSet, 0));
    view.m_sampleImage = "no such.png";
    DrawImageSample(view);
    EXPECT_EQS((view.m_fitMode, false), (QSize(view.m_pictureWidth, view.m_pictureHeight), QSize(120, 61)));
}

TEST(StorePicture, SetsScrollSizesOnlyInScrollModeAndForANewSize) {
    PreviewFake view;
    const CChartHolder chart(XYChart2BaseChart(CXYChart_create(40, 30, 0, 0, 0)));
    const auto store = [&](bool fitMode) {
        view.m_fitMode = fitMode;
        StorePicture(&view, chart.Get());
        return view.m_scrollSizesSet;
    };
    EXPECT_EQS((store(true), 0), (view.m_pictureWidth, 40), (view.m_pictureHeight, 30),
               (view.m_picture.Bytes().size(), 54U + 40 * 30 * 3));
    EXPECT_EQ(store(false), 0); // the size has not changed
    CBaseChart_setSize(chart.Get(), 40, 31);
    EXPECT_EQS((store(false), 1), (store(false), 1));
}

TEST(StorePicture, OfNothingIsNone) {
    const recorder::Recording recording;
    StorePicture(nullptr, nullptr);
    EXPECT_EQ(makingCalls(recording), "CBaseChart_makeChart2(null, 4)\n");
    PreviewFake view;
    const CChartHolder chart(XYChart2BaseChart(CXYChart_create(0, 30, 0, 0, 0)));
    StorePicture(&view, chart.Get());
    EXPECT_EQS((view.m_picture.Empty(), true), (view.m_pictureHeight, 0));
}

TEST(PictureBlock, IsLeftBehindAndTakenOver) {
    const int before = CPictureBlock::LeftBehind();
    {
        CPictureBlock first;
        CPictureBlock second;
        const CPictureBlock empty;
        EXPECT_EQS((first.Assign("abc", 3), true), (second.Assign("de", 2), true), (second.Assign(nullptr, 0), false),
                   (second.Empty(), true));
    }
    const int left = CPictureBlock::LeftBehind();
    EXPECT_LE(left, std::max(before, 2));
    EXPECT_GE(left, 2);
    CPictureBlock next;
    EXPECT_EQS((next.Assign("xyz", 3), true), (CPictureBlock::LeftBehind(), left - 1),
               (next.Bytes(), (std::vector<char>{'x', 'y', 'z'})));
}

TEST(Utf8Text, KeepsNullEmptyAndAsciiAndMakesGoodUtf8) {
    EXPECT_EQ(static_cast<const char*>(CUtf8Text(nullptr)), nullptr);
    EXPECT_STREQ(CUtf8Text(""), "");
    EXPECT_STREQ(CUtf8Text("C:\\a b.png\x7f"), "C:\\a b.png\x7f");
    EXPECT_STREQ(CUtf8Text("\xed\x95\x9c"), "\xed\x95\x9c");
    EXPECT_STREQ(CUtf8Text("a\xff"), "a\xef\xbf\xbd");
}
} // namespace
