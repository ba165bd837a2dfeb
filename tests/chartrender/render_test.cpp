// Rendering with the host's data: the calls, the picture, and clear answers where there is none.

#include "tests/render/calls.h"
#include <QFile>
#include <QTemporaryDir>
#include <chartrender/chartrender.h>
#include <gmock/gmock.h>

namespace {
using recorder::Recording;
using testing::Contains;

CPieChart twoSectors() {
    CPieChart pie;
    for (const char* name : {"first", "second"}) {
        CPieChartSector sector;
        sector.m_text = name;
        sector.m_color.m_color = 0x336699;
        pie.m_sectors.push_back(sector);
    }
    return pie;
}

QByteArray bytesOf(const CChartPicture& picture) {
    return {reinterpret_cast<const char*>(picture.Data()), static_cast<qsizetype>(picture.Size())};
}

TEST(Render, ShowsTheHostsDataInTheModelsLooks) {
    const double values[] = {25, 18.5, 15};
    const char* labels[] = {"Labour", nullptr, "K\xc3\xb6ln"};
    const Recording recording;
    CChartPicture picture;
    ASSERT_EQ(RenderPieChart(twoSectors(), CChartLayout(), {values, labels, 3}, ChartPictureFormat::Bmp, picture),
              ChartRenderResult::Ok);
    EXPECT_THAT(recording.Lines(),
                Contains("CPieChart_setData(PieChart#1, [25, 18.5, 15], [\"Labour\", \"second\", \"K\xc3\xb6ln\"])"));
    RenderPieChart(twoSectors(), CChartLayout(), {values, nullptr, 3}, ChartPictureFormat::Bmp, picture);
    EXPECT_THAT(recording.Lines(),
                Contains(R"(CPieChart_setData(PieChart#2, [25, 18.5, 15], ["first", "second", ""]))"));
    EXPECT_EQS((recording.Count("CSector_setColor"), 4), (recording.Count("CRanTable_create"), 0),
               (recording.Lines().back(), "CBaseChart_destroy(BaseChart#2)"));
}

TEST(Render, MakesTheSamePictureInBothFormats) {
    const double values[] = {3, 2, 1};
    CChartPicture bitmap;
    CChartPicture png;
    const CPieChartData data = {values, nullptr, 3};
    ASSERT_EQ(RenderPieChart(twoSectors(), CChartLayout(), data, ChartPictureFormat::Bmp, bitmap),
              ChartRenderResult::Ok);
    ASSERT_EQ(RenderPieChart(twoSectors(), CChartLayout(), data, ChartPictureFormat::Png, png), ChartRenderResult::Ok);
    EXPECT_EQS((bytesOf(bitmap).startsWith("BM"), true), (bytesOf(png).startsWith("\x89PNG"), true));
    const QImage image = QImage::fromData(bytesOf(png)).convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(image.size(), QSize(500, 550));
    EXPECT_TRUE(image == QImage::fromData(bytesOf(bitmap)).convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(image.pixel(260, 200), 0xff336699); // right of straight up stands the first sector
    CChartLayout large;                           // more than the toolkit reads by itself
    large.m_width = 6000;
    large.m_height = 5900;
    ASSERT_EQ(RenderPieChart(twoSectors(), large, data, ChartPictureFormat::Png, png), ChartRenderResult::Ok);
    EXPECT_EQ(bytesOf(png).mid(16, 8), QByteArray("\0\0\x17\x70\0\0\x17\x0c", 8)); // width and height
}

TEST(Render, AnswersBadInputWithoutAPicture) {
    const double values[] = {1};
    CChartLayout layout;
    CChartLayout tooWide;
    tooWide.m_width = 16385;
    CChartLayout noArea;
    noArea.m_height = 0;
    struct Case {
        const CChartLayout& layout;
        CPieChartData data;
        ChartRenderResult result;
    };
    const Case cases[] = {
        {layout, {values, nullptr, -1}, ChartRenderResult::BadData},
        {layout, {nullptr, nullptr, 1}, ChartRenderResult::BadData},
        {tooWide, {values, nullptr, 1}, ChartRenderResult::NoPicture},
        {noArea, {values, nullptr, 1}, ChartRenderResult::NoPicture},
        {layout, {nullptr, nullptr, 0}, ChartRenderResult::Ok},
    };
    for (const Case& bad : cases)
        for (const auto format : {ChartPictureFormat::Bmp, ChartPictureFormat::Png}) {
            CChartPicture picture; // holds one already, which must go
            RenderPieChart(CPieChart(), layout, {values, nullptr, 1}, format, picture);
            EXPECT_EQS((RenderPieChart(CPieChart(), bad.layout, bad.data, format, picture), bad.result),
                       (picture.Empty(), bad.result != ChartRenderResult::Ok),
                       (picture.Data() == nullptr, picture.Empty()));
        }
}

TEST(Picture, SavesItsBytesOrNothing) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("pie.png");
    const QByteArray narrow = path.toLocal8Bit();
    CChartPicture picture;
    EXPECT_EQS((picture.Save(narrow.constData()), false), (QFile::exists(path), false));
    const double values[] = {1, 2};
    RenderPieChart(CPieChart(), CChartLayout(), {values, nullptr, 2}, ChartPictureFormat::Png, picture);
    EXPECT_FALSE(picture.Save(nullptr));
    EXPECT_FALSE(picture.Save(folder.filePath("no/such/folder.png").toLocal8Bit().constData()));
    ASSERT_TRUE(picture.Save(narrow.constData()));
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::ReadOnly));
    EXPECT_EQ(file.readAll(), bytesOf(picture));
}
} // namespace
