// A host whose memory ends: an allocator that fails at the n-th call, for every n. Nothing is thrown at the host, which
// may be a C program, a picture that memory does not suffice for is false and no bytes, and the charts are sound
// afterwards. What fails are the library's own allocations, and those of whole pictures, which the toolkit makes for
// it; that the toolkit comes through want of memory by itself is not ours to prove.

#include "tests/expect.h"
#include <cstdlib> // tells of the library

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include <chartdraw/surface.h>
#include <cstdlib>
#include <cstring>
#include <link.h>
#include <new>
#include <utility>

extern "C" void* __libc_malloc(std::size_t);

namespace {
struct Range {
    std::uintptr_t from = 0, to = 0;
};
Range s_library;
bool s_armed = false;
long s_left = 0;

constexpr std::size_t kPictureBytes = 64 * 1024;

bool fails() { return s_armed && --s_left == 0; }

int findLibrary(dl_phdr_info* info, std::size_t, void*) {
    if (std::strstr(info->dlpi_name, "libchartdraw") == nullptr) return 0;
    for (int i = 0; i < info->dlpi_phnum; ++i) {
        const auto& part = info->dlpi_phdr[i];
        if (part.p_type == PT_LOAD && (part.p_flags & PF_X) != 0)
            s_library = {info->dlpi_addr + part.p_vaddr, info->dlpi_addr + part.p_vaddr + part.p_memsz};
    }
    return 1;
}
} // namespace

[[gnu::noinline]] void* operator new(std::size_t bytes) {
    const auto caller = reinterpret_cast<std::uintptr_t>(__builtin_return_address(0));
    if (s_armed && caller >= s_library.from && caller < s_library.to && fails()) throw std::bad_alloc();
    if (void* made = __libc_malloc(bytes)) return made;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" void* malloc(std::size_t bytes) {
    return s_armed && bytes >= kPictureBytes && fails() ? nullptr : __libc_malloc(bytes);
}

namespace {
/// Two charts on a third, with what charts can have. Whether the picture was made.
bool drawEverything() {
    const double values[] = {3, -4, 5, 6, 2, 8};
    const char* const names[] = {"one", "two", "three", "four", "five", "six"};
    XYChart* xy = CXYChart_create(300, 200, 0xffffff, -1, 1);
    CXYChart_setPlotArea(xy, 40, 20, 200, 150, -1, -1, -1, -1, -1);
    TextBox* title = CAxis_setTitle(CXYChart_yAxis(xy), "Axis", "bold", 9, -1);
    CBox_setBackground(TextBox2Box(title), 0xeeeeff, 0, 1);
    CAxis_addMark(CXYChart_yAxis2(xy), 4, 0xff0000, "Mark", nullptr, 8);
    CAxis_setLabels2(CXYChart_xAxis(xy), values, 6, "{value|1}");
    Layer* bars = BarLayer2Layer(CXYChart_addBarLayer(xy, values, 6, CChart_metalColor(0x808080, 45), "Bars", 5));
    CLayer_setDataLabelStyle(bars, nullptr, 8, -1, 30);
    LineLayer* line = SplineLayer2LineLayer(CXYChart_addSplineLayer(xy, values, 6, -1, "Spline"));
    CDataSet_setDataSymbol(CLayer_getDataSet(LineLayer2Layer(line), 0), CHART_CIRCLE_SYMBOL, 9, -1, 0, 1);
    CXYChart_addCandleStickLayer(xy, values, 6, values, 6, values, 6, values, 6, 0xffffff, 0, 0);
    CBaseChart_addLegend(XYChart2BaseChart(xy), 10, 10, false, "normal", 8);

    PieChart* pie = CPieChart_create(200, 200, 0xffffff, -1, 0);
    CPieChart_setData(pie, values, 6, names, 6);
    CPieChart_set3D(pie, -1, -1, false);
    CSector_setExplode(CPieChart_sector(pie, 2), 9);
    CBaseChart_formatValue(PieChart2BaseChart(pie), 1234.5, "2,.");

    MultiChart* multi = CMultiChart_create(500, 220, 0xffffff, -1, 0);
    CMultiChart_addChart(multi, 0, 0, XYChart2BaseChart(xy));
    CMultiChart_addChart(multi, 300, 0, PieChart2BaseChart(pie));
    const char* bytes = nullptr;
    int length = 1;
    const bool made = CBaseChart_makeChart2(MultiChart2BaseChart(multi), CHART_FORMAT_BMP, &bytes, &length);
    EXPECT_EQS((made, bytes != nullptr && length > 54), (made || (bytes == nullptr && length == 0), true));
    CBaseChart_destroy(XYChart2BaseChart(xy));
    CBaseChart_destroy(MultiChart2BaseChart(multi));
    CBaseChart_destroy(PieChart2BaseChart(pie));

    ArrayMath* array = CArrayMath_create(values, 6);
    CArrayMath_movStdDev(array, 2);
    CArrayMath_destroy(array);
    CRanTable_destroy(CRanTable_create(1, 3, 50));
    return made;
}

TEST(LowMemory, EndsInNoPictureAndNothingElse) {
    ASSERT_TRUE(drawEverything()); // the toolkit and the caches make what they keep
    dl_iterate_phdr(findLibrary, nullptr);
    ASSERT_NE(s_library.from, 0u);
    long calls = 0;
    int failed = 0;
    for (bool reached = true; reached; ++calls) {
        s_left = calls + 1;
        s_armed = true;
        const bool made = drawEverything();
        s_armed = false;
        reached = s_left <= 0;
        failed += made ? 0 : 1;
    }
    EXPECT_GT(calls, 200);
    EXPECT_GT(failed, 20);
    EXPECT_TRUE(drawEverything());
}
} // namespace

#endif
