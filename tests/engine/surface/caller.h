#pragma once
// A caller without sense: operations of the surface with arguments at and beyond all limits, from a source of
// numbers that a test seeds or a fuzzer writes.

#include <algorithm>
#include <chartdraw/surface.h>
#include <climits>
#include <cstdlib>
#include <functional>
#include <limits>
#include <map>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#ifndef CHART_SOURCE
#define CHART_SOURCE "."
#endif

namespace surface {
constexpr int kArrayLength = 64;

// Files that exist, next to names that do not.
inline const char* const s_image = CHART_SOURCE "/docs/images/pie-chart.png";
inline const char* const s_font = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

template <class T>
constexpr bool isArray =
    std::is_same_v<T, const double*> || std::is_same_v<T, const int*> || std::is_same_v<T, const char* const*>;

inline BaseChart* baseOf(XYChart* chart) { return XYChart2BaseChart(chart); }
inline BaseChart* baseOf(PieChart* chart) { return PieChart2BaseChart(chart); }
inline BaseChart* baseOf(PolarChart* chart) { return PolarChart2BaseChart(chart); }
inline BaseChart* baseOf(MultiChart* chart) { return MultiChart2BaseChart(chart); }
inline BaseChart* baseOf(AngularMeter* meter) { return BaseMeter2BaseChart(AngularMeter2BaseMeter(meter)); }
inline BaseChart* baseOf(LinearMeter* meter) { return BaseMeter2BaseChart(LinearMeter2BaseMeter(meter)); }

/// Where arguments come from: values at and beyond all limits, and the handles that calls have given.
class Caller {
public:
    explicit Caller(std::function<unsigned()> random) : m_random(std::move(random)) {
        for (int i = 0; i < kArrayLength; ++i) {
            m_doubles.push_back(real());
            m_ints.push_back(number());
            m_texts.push_back(text());
        }
    }

    ~Caller() {
        while (!m_charts.empty()) destroyOne();
        std::for_each(m_tables.begin(), m_tables.end(), CRanTable_destroy);
        std::for_each(m_arrays.begin(), m_arrays.end(), CArrayMath_destroy);
    }

    void drawAll() {
        for (BaseChart* chart : m_charts) {
            const bool made = CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &m_outBytes, &m_outCount);
            if (made != (m_outBytes != nullptr && m_outCount > 54)) std::abort();
            m_pictures += made ? 1 : 0;
        }
    }

    int pictures() const { return m_pictures; }

    template <class Result, class... Args> void call(Result (*operation)(Args...)) {
        std::tuple<Args...> args;
        fill(args, std::index_sequence_for<Args...>());
        if constexpr (std::is_pointer_v<Result> && !std::is_same_v<Result, const char*>)
            keep(std::apply(operation, args), ownerOf(args));
        else
            std::apply(operation, args);
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    /// Ends one of the charts, with all handles that came from it.
    void destroyOne() {
        if (m_charts.empty()) return;
        const std::size_t at = below(m_charts.size());
        BaseChart* chart = m_charts[at];
        m_charts.erase(m_charts.begin() + static_cast<std::ptrdiff_t>(at));
        const auto its = [&](void* handle) { return m_owners[handle] == chart; };
        for (auto& [key, handles] : m_handles) std::erase_if(handles, its);
        std::erase_if(m_all, its);
        std::erase_if(m_owners, [&](const auto& entry) { return entry.second == chart; });
        CBaseChart_destroy(chart);
    }

private:
    template <class Tuple, std::size_t... I> void fill(Tuple& args, std::index_sequence<I...>) {
        (fillOne<I>(args), ...);
    }

    template <std::size_t I, class Tuple> void fillOne(Tuple& args) {
        using T = std::tuple_element_t<I, Tuple>;
        if constexpr (I > 0 && std::is_same_v<T, int>) {
            if constexpr (isArray<std::tuple_element_t<I - 1, Tuple>>) {
                std::get<I>(args) = static_cast<int>(below(kArrayLength + 4)) - 3;
                return;
            }
        }
        std::get<I>(args) = pick(static_cast<T*>(nullptr));
    }

    int pick(int*) { return number(); }
    double pick(double*) { return real(); }
    bool pick(bool*) { return below(2) == 0; }
    const char* pick(const char**) { return text(); }
    const double* pick(const double**) { return below(16) == 0 ? nullptr : m_doubles.data(); }
    const int* pick(const int**) { return below(16) == 0 ? nullptr : m_ints.data(); }
    const char* const* pick(const char* const**) { return below(16) == 0 ? nullptr : m_texts.data(); }
    const double** pick(const double***) { return below(4) == 0 ? nullptr : &m_outDoubles; }
    const char** pick(const char***) { return below(4) == 0 ? nullptr : &m_outBytes; }
    int* pick(int**) { return below(4) == 0 ? nullptr : &m_outCount; }

    /// A handle: mostly a fitting one, now and then null or of any other kind.
    template <class Handle> Handle* pick(Handle**) {
        const auto& fitting = handles<Handle>();
        const std::size_t chance = below(20);
        if (chance == 0 && !m_all.empty()) return static_cast<Handle*>(m_all[below(m_all.size())]);
        return chance == 1 || fitting.empty() ? nullptr : static_cast<Handle*>(fitting[below(fitting.size())]);
    }

    /// The chart that the first argument belongs to; null for a creator.
    template <class... Args> void* ownerOf(const std::tuple<Args...>& args) {
        using First = std::tuple_element_t<0, std::tuple<Args...>>;
        if constexpr (std::is_pointer_v<First> && !std::is_const_v<std::remove_pointer_t<First>>)
            return m_owners[std::get<0>(args)];
        else
            return nullptr;
    }

    template <class Handle> void keep(Handle* handle, void* owner) {
        if (handle != nullptr) {
            m_owners[handle] = owner != nullptr ? owner : static_cast<void*>(handle);
            handles<Handle>().push_back(handle);
            m_all.push_back(handle);
            // Only creators give handles of the following kinds.
            if constexpr (requires { baseOf(handle); })
                m_charts.push_back(baseOf(handle));
            else if constexpr (std::is_same_v<Handle, RanTable>)
                m_tables.push_back(handle);
            else if constexpr (std::is_same_v<Handle, ArrayMath>)
                m_arrays.push_back(handle);
        }
    }

    template <class Handle> std::vector<void*>& handles() {
        static char key;
        return m_handles[&key];
    }

    int number() {
        static const int odd[] = {INT_MIN, -20000, -1, 0, 1, 20000, INT_MAX, CHART_TRANSPARENT, CHART_TEXT_COLOR};
        return below(4) == 0 ? odd[below(std::size(odd))] : static_cast<int>(below(450)) - 50;
    }

    double real() {
        using Limits = std::numeric_limits<double>;
        constexpr double kNone = CHART_NO_VALUE, kBeyond = Limits::infinity(), kNaN = Limits::quiet_NaN();
        static const double odd[] = {0, -1, 1e-300, 1e18, kNone, -kNone, 1e308, kBeyond, -kBeyond, kNaN};
        return below(4) == 0 ? odd[below(std::size(odd))] : static_cast<double>(below(20000)) / 100 - 50;
    }

    const char* text() {
        static const std::string huge(20000, 'W');
        static const char* const texts[] = {nullptr,
                                            "",
                                            " ",
                                            "Sales",
                                            "two\nlines",
                                            "normal",
                                            "boldItalic",
                                            "DejaVuSans.ttf",
                                            "none.ttf|99",
                                            "\xff\xfe\x80 no text",
                                            "\xed\x95\x9c\xea\xb8\x80",
                                            "{value|2,.}",
                                            "{value|yyyy-mm-dd}",
                                            "{percent}%",
                                            "{",
                                            "{value|",
                                            "<*font=bold,size=1e9*>a<*/*>",
                                            "<*sub*><*super*><*",
                                            "none/such.png",
                                            "tests/CMakeLists.txt",
                                            "/proc/self/maps",
                                            "/dev/zero",
                                            s_image,
                                            s_font,
                                            huge.c_str()};
        return texts[below(std::size(texts))];
    }

    std::function<unsigned()> m_random;
    std::vector<double> m_doubles;
    std::vector<int> m_ints;
    std::vector<const char*> m_texts;
    std::map<const void*, std::vector<void*>> m_handles;
    std::vector<void*> m_all;
    std::map<void*, void*> m_owners; ///< the chart that gave a handle
    std::vector<BaseChart*> m_charts;
    std::vector<RanTable*> m_tables;
    std::vector<ArrayMath*> m_arrays;
    int m_pictures = 0;
    const double* m_outDoubles = nullptr;
    const char* m_outBytes = nullptr;
    int m_outCount = 0;
};
} // namespace surface
