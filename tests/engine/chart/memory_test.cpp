// A host that draws for days: charts leave nothing behind. Only where the system tells the size of the
// process, and not under a sanitizer, which keeps what has been freed.

#if defined(__linux__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include <chartdraw/surface.h>

#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

long residentKilobytes() {
    std::ifstream file("/proc/self/statm");
    long total = 0, resident = 0;
    file >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

void drawCharts(int count) {
    const double values[] = {3, 4, 5};
    const char* const names[] = {"one", "two", "three"};
    const int pixels[] = {0xff0000, 0x00ff00, 0x0000ff, 0xffffff};
    for (int i = 0; i < count; ++i) {
        PieChart* pie = CPieChart_create(120, 90, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 1);
        BaseChart* chart = PieChart2BaseChart(pie);
        CPieChart_setPieSize(pie, 60, 45, 25);
        CPieChart_setData(pie, values, 3, names, 3);
        CSector_setColor(CPieChart_sector(pie, 0), CChart_metalColor(0x999999, 45), -1, -1);
        CSector_setColor(CPieChart_sector(pie, 1), CBaseChart_patternColor(chart, pixels, 4, 2, 0, 0), -1,
                         -1);
        CBaseChart_addTitle(chart, "Title", "bold", 8, -1, -1, -1);
        CBaseChart_addLegend(chart, 0, 70, false, nullptr, 7);
        CBaseChart_formatValue(chart, i, "2,.");
        CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, nullptr, nullptr);
        CBaseChart_destroy(chart);
    }
}

TEST(Memory, DoesNotGrowOverTenThousandCharts) {
    drawCharts(500); // caches and the allocator's pools fill
    const long before = residentKilobytes();
    ASSERT_GT(before, 0);
    drawCharts(10000);
    // 400 bytes lost a chart would show.
    EXPECT_LT(residentKilobytes() - before, 4000);
}

} // namespace

#endif
