// The samples of the pickers, by their calls and by their pixels, and what becomes of a finished picture.

#include "render/chart_holder.h"
#include "render/samples.h"
#include "tests/recorder/recorder.h"
#include "tests/render/pixels.h"
#include "tests/render/preview_fake.h"
#include <QImage>
#include <QTemporaryDir>
#include <gmock/gmock.h>

namespace {

using Lines = std::vector<std::string>;
using recorder::Recording;

Lines drawn(PreviewFake& view, void (*routine)(CChartPreview&)) {
    const Recording recording;
    routine(view);
    return recording.Lines();
}

const Lines kCreate = {"CXYChart_create(120, 61, 0xffff0000, 0xff000000, 0)", "XYChart2BaseChart(XYChart#1)"};

Lines joined(Lines lines, const Lines& rest) {
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
}

TEST(ColorSample, ShowsAGeneralColourOverAChequerBoard) {
    PreviewFake view;
    view.m_sampleColor.m_color = 0x800000ff; // half transparent blue
    Lines lines = drawn(view, DrawColorSample);
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(std::count(lines[2].begin(), lines[2].end(), 'x'), 50); // fifty times 0x00ffffff
    EXPECT_THAT(lines[2], testing::EndsWith("], 10, 0, 0)"));
    EXPECT_THAT(lines[3], testing::AllOf(testing::StartsWith("CBaseChart_setBackground(BaseChart#1, "),
                                         testing::EndsWith(", 0xff000000, 0)")));
    lines.erase(lines.begin() + 2, lines.begin() + 4);
    EXPECT_EQ(lines,
              joined(kCreate, {R"(CBaseChart_addTitle(BaseChart#1, "", "timesbi.ttf", 15, 0, )"
                               "0x800000ff, 0xff000000)",
                               "CTextBox_setHeight(TextBox#1, 61)", "CBaseChart_makeChart2(BaseChart#1, 4)",
                               "CBaseChart_destroy(BaseChart#1)"}));
    EXPECT_TRUE(view.m_picture.Empty());
    // Blue at half strength over white is 7f7fff, over black 00007f; squares are 5 pixels a side.
    for (int y = 0; y < 61; ++y)
        for (int x = 0; x < 120; ++x) {
            const bool white = (x / 5 + y / 5) % 2 == 0;
            const int pixel = pixelAt(view.m_painted, x, y);
            ASSERT_NEAR(pixel >> 16, white ? 0x7f : 0, 1) << x << ',' << y;
            ASSERT_NEAR(pixel & 0xff, white ? 0xff : 0x7f, 1) << x << ',' << y;
        }
}

TEST(ColorSample, ShowsAPatternOverBlack) {
    PreviewFake view;
    view.m_sampleColor.m_type = 1;
    view.m_sampleColor.m_patternFile = "no such.png";
    EXPECT_EQ(drawn(view, DrawColorSample),
              joined(kCreate, {"CBaseChart_setBackground(BaseChart#1, 0, 0xff000000, 0)",
                               R"(CBaseChart_patternColor2(BaseChart#1, "no such.png", 0, 0))",
                               R"(CBaseChart_addTitle(BaseChart#1, "", "timesbi.ttf", 15, 0, )"
                               "0xff000000, 0xff000000)",
                               "CTextBox_setHeight(TextBox#1, 61)", "CBaseChart_makeChart2(BaseChart#1, 4)",
                               "CBaseChart_destroy(BaseChart#1)"}));
    EXPECT_EQ(pixelAt(view.m_painted, 60, 30), 0x000000);
}

TEST(FontSample, ShowsTheFaceNameCentredFromTopToBottom) {
    PreviewFake view;
    view.m_sampleFont.m_faceName = "Liberation Sans";
    view.m_sampleFont.m_fileName = "LiberationSans-Regular.ttf";
    view.m_sampleFont.m_size = 10;
    Lines lines = drawn(view, DrawFontSample);
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_THAT(lines[8], testing::StartsWith("CBox_setPos(Box#1, 0, "));
    lines.erase(lines.begin() + 8);
    EXPECT_EQ(lines,
              joined(kCreate, {"CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0xff000000, 0)",
                               "CBaseChart_addTitle(BaseChart#1, \"Liberation Sans\", "
                               "\"LiberationSans-Regular.ttf\", 10, 0, 0x00ffffff, 0xff000000)",
                               "CTextBox_setMargin(TextBox#1, 0)", "CTextBox_setAlignment(TextBox#1, 4)",
                               "TextBox2Box(TextBox#1)", "CBox_getHeight(Box#1)",
                               "CBaseChart_makeChart2(BaseChart#1, 4)", "CBaseChart_destroy(BaseChart#1)"}));
    EXPECT_TRUE(view.m_picture.Empty());
    int top = 61;
    int bottom = 0;
    int left = 120;
    for (int y = 0; y < 61; ++y)
        for (int x = 0; x < 120; ++x)
            if (pixelAt(view.m_painted, x, y) < 0x808080) {
                left = std::min(left, x);
                top = std::min(top, y);
                bottom = std::max(bottom, y);
            }
    EXPECT_NEAR((top + bottom) / 2, 30, 3);
    EXPECT_LE(left, 3);
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
    EXPECT_EQ(
        drawn(view, DrawImageSample),
        joined(kCreate, {"CBaseChart_getDrawArea(BaseChart#1)",
                         "CDrawArea_load(DrawArea#1, \"" + path.toStdString() + "\")",
                         "CDrawArea_getWidth(DrawArea#1)", "CDrawArea_getHeight(DrawArea#1)",
                         "CBaseChart_setSize(BaseChart#1, 30, 20)", "CBaseChart_makeChart2(BaseChart#1, 4)",
                         "CBaseChart_getDrawArea(BaseChart#1)", "CDrawArea_getWidth(DrawArea#1)",
                         "CDrawArea_getHeight(DrawArea#1)", "CBaseChart_destroy(BaseChart#1)"}));
    EXPECT_TRUE(view.m_fitMode);
    EXPECT_EQ(view.m_pictureWidth, 30);
    EXPECT_EQ(view.m_pictureHeight, 20);
    const auto& bytes = view.m_picture.Bytes();
    EXPECT_EQ(pixelAt({bytes.data(), bytes.size()}, 15, 10), 0x123456);
    EXPECT_EQ(view.m_scrollSizesSet, 0);
}

TEST(ImageSample, OfAnUnreadableFileIsEmptyAndScrolls) {
    PreviewFake view;
    view.m_sampleImage = "no such.png";
    EXPECT_EQ(drawn(view, DrawImageSample),
              joined(kCreate,
                     {"CBaseChart_getDrawArea(BaseChart#1)", R"(CDrawArea_load(DrawArea#1, "no such.png"))",
                      "CBaseChart_makeChart2(BaseChart#1, 4)", "CBaseChart_getDrawArea(BaseChart#1)",
                      "CDrawArea_getWidth(DrawArea#1)", "CDrawArea_getHeight(DrawArea#1)",
                      "CBaseChart_destroy(BaseChart#1)"}));
    EXPECT_FALSE(view.m_fitMode);
    EXPECT_EQ(view.m_pictureWidth, 120);
    EXPECT_EQ(view.m_pictureHeight, 61);
}

TEST(StorePicture, SetsScrollSizesOnlyInScrollModeAndForANewSize) {
    PreviewFake view;
    const CChartHolder chart(XYChart2BaseChart(CXYChart_create(40, 30, 0, 0, 0)));
    const auto store = [&](bool fitMode) {
        view.m_fitMode = fitMode;
        StorePicture(&view, chart.Get());
        return view.m_scrollSizesSet;
    };
    EXPECT_EQ(store(true), 0);
    EXPECT_EQ(view.m_pictureWidth, 40);
    EXPECT_EQ(view.m_pictureHeight, 30);
    EXPECT_EQ(view.m_picture.Bytes().size(), 54U + 40 * 30 * 3);
    EXPECT_EQ(store(false), 0); // the size has not changed
    CBaseChart_setSize(chart.Get(), 40, 31);
    EXPECT_EQ(store(false), 1);
    EXPECT_EQ(store(false), 1);
}

TEST(StorePicture, WithoutAPreviewOnlyMakesThePicture) {
    const Recording recording;
    StorePicture(nullptr, nullptr);
    EXPECT_EQ(recording.Lines(), Lines{"CBaseChart_makeChart2(null, 4)"});
}

TEST(StorePicture, LeavesNoneWhereThereIsNone) {
    PreviewFake view;
    const CChartHolder chart(XYChart2BaseChart(CXYChart_create(0, 30, 0, 0, 0)));
    StorePicture(&view, chart.Get());
    EXPECT_TRUE(view.m_picture.Empty());
    EXPECT_EQ(view.m_pictureHeight, 0);
}

TEST(PictureBlock, IsLeftBehindAndTakenOver) {
    const int before = CPictureBlock::LeftBehind();
    {
        CPictureBlock first;
        CPictureBlock second;
        const CPictureBlock empty;
        EXPECT_TRUE(first.Assign("abc", 3));
        EXPECT_TRUE(second.Assign("de", 2));
        EXPECT_FALSE(second.Assign(nullptr, 0));
        EXPECT_TRUE(second.Empty());
    }
    const int left = CPictureBlock::LeftBehind();
    EXPECT_LE(left, std::max(before, 2));
    EXPECT_GE(left, 2);
    CPictureBlock next;
    EXPECT_TRUE(next.Assign("xyz", 3));
    EXPECT_EQ(CPictureBlock::LeftBehind(), left - 1);
    EXPECT_EQ(next.Bytes(), (std::vector<char>{'x', 'y', 'z'}));
}

} // namespace
