// Charts drawn at the same time in two threads: what they share (faces, images, colour tokens) is guarded,
// and each picture is the one that a thread alone would have made. Meant for the build under ThreadSanitizer.

#include <QImage>
#include <QTemporaryDir>
#include <chartdraw/surface.h>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

namespace {
std::string picture(int variant, const std::string& image) {
    const double values[] = {3.0 + variant, 4, 5, 6};
    const char* const names[] = {"one", "zwei", "\xed\x95\x9c\xea\xb8\x80", "\xe6\x97\xa5\xe6\x9c\xac"};
    const char* const fonts[] = {"DejaVuSans.ttf", "bold", "LiberationSerif-Regular.ttf"};
    PieChart* pie = CPieChart_create(200, 160, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, variant % 3);
    BaseChart* chart = PieChart2BaseChart(pie);
    CBaseChart_setBgImage(chart, image.c_str(), CHART_CENTER);
    CPieChart_setPieSize(pie, 100, 80, 50);
    CPieChart_setData(pie, values, 4, names, 4);
    CPieChart_setLabelStyle(pie, fonts[variant % 3], 7 + variant % 4, -1);
    CPieChart_setLabelFormat(pie, "{label} <*font=italic*>{percent|1}%");
    CPieChart_set3D(pie, -1, -1, variant % 2 == 0);
    CSector_setColor(CPieChart_sector(pie, 0), CChart_metalColor(0x406080 + variant, 30 * variant), -1, -1);
    CSector_setColor(CPieChart_sector(pie, 1), CBaseChart_patternColor2(chart, image.c_str(), 0, 0), -1, -1);
    CBaseChart_addTitle(chart, "Title", fonts[(variant + 1) % 3], 10, 0, 0xddeeff, -1);
    CBaseChart_addLegend(chart, 0, 140, false, nullptr, 7);
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
    std::string result(bytes, static_cast<std::size_t>(length));
    CBaseChart_destroy(chart);
    return result;
}

TEST(TwoThreads, DrawTheSamePicturesAsOneAlone) {
    constexpr int kVariants = 12, kThreads = 2;
    const QTemporaryDir folder;
    const std::string file = folder.filePath("image.png").toStdString();
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(QColor(230, 240, 250));
    ASSERT_TRUE(image.save(QString::fromStdString(file)));

    // The threads go first: nothing has been loaded or cached yet.
    std::vector<std::string> made[kThreads];
    std::vector<std::thread> threads;
    for (auto& pictures : made) {
        threads.emplace_back([&pictures, &file] {
            for (int variant = 0; variant < kVariants; ++variant) pictures.push_back(picture(variant, file));
        });
    }
    for (std::thread& thread : threads) thread.join();
    for (int variant = 0; variant < kVariants; ++variant) {
        const std::string alone = picture(variant, file);
        for (const auto& pictures : made) EXPECT_TRUE(pictures[static_cast<std::size_t>(variant)] == alone) << variant;
    }
}
} // namespace
