// Every operation with what a careless or hostile caller may hand in: no handle at all, a handle of another
// kind, and whole charts made by calls in random order with random arguments. The last case can only fail by
// a crash, a hang, or a sanitizer's complaint in the builds that have one.

#include <chartdraw/surface.h>

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <random>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace {

constexpr int kArrayLength = 64;

template <class T>
constexpr bool isArray = std::is_same_v<T, const double*> || std::is_same_v<T, const int*> ||
                         std::is_same_v<T, const char* const*>;

BaseChart* baseOf(XYChart* chart) {
    return XYChart2BaseChart(chart);
}
BaseChart* baseOf(PieChart* chart) {
    return PieChart2BaseChart(chart);
}
BaseChart* baseOf(PolarChart* chart) {
    return PolarChart2BaseChart(chart);
}
BaseChart* baseOf(MultiChart* chart) {
    return MultiChart2BaseChart(chart);
}
BaseChart* baseOf(AngularMeter* meter) {
    return BaseMeter2BaseChart(AngularMeter2BaseMeter(meter));
}
BaseChart* baseOf(LinearMeter* meter) {
    return BaseMeter2BaseChart(LinearMeter2BaseMeter(meter));
}

/// Where arguments come from: values at and beyond all limits, and the handles that calls have given.
class Caller {
public:
    explicit Caller(unsigned seed) : m_random(seed) {
        for (int i = 0; i < kArrayLength; ++i) {
            m_doubles.push_back(real());
            m_ints.push_back(number());
            m_texts.push_back(text());
        }
    }

    ~Caller() {
        std::shuffle(m_charts.begin(), m_charts.end(), m_random);
        std::for_each(m_charts.begin(), m_charts.end(), CBaseChart_destroy);
        std::for_each(m_tables.begin(), m_tables.end(), CRanTable_destroy);
        std::for_each(m_arrays.begin(), m_arrays.end(), CArrayMath_destroy);
    }

    void drawAll() {
        for (BaseChart* chart : m_charts) {
            const bool made = CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &m_outBytes, &m_outCount);
            ASSERT_EQ(made, m_outBytes != nullptr && m_outCount > 54);
            m_pictures += made ? 1 : 0;
        }
    }

    int pictures() const { return m_pictures; }

    template <class Result, class... Args>
    void call(Result (*operation)(Args...)) {
        std::tuple<Args...> args;
        fill(args, std::index_sequence_for<Args...>());
        if constexpr (std::is_pointer_v<Result> && !std::is_same_v<Result, const char*>)
            keep(std::apply(operation, args));
        else
            std::apply(operation, args);
    }

    std::size_t below(std::size_t limit) { return m_random() % limit; }

private:
    template <class Tuple, std::size_t... I>
    void fill(Tuple& args, std::index_sequence<I...>) {
        (fillOne<I>(args), ...);
    }

    template <std::size_t I, class Tuple>
    void fillOne(Tuple& args) {
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
    template <class Handle>
    Handle* pick(Handle**) {
        const auto& fitting = handles<Handle>();
        const std::size_t chance = below(20);
        if (chance == 0 && !m_all.empty())
            return static_cast<Handle*>(m_all[below(m_all.size())]);
        return chance == 1 || fitting.empty() ? nullptr
                                              : static_cast<Handle*>(fitting[below(fitting.size())]);
    }

    template <class Handle>
    void keep(Handle* handle) {
        if (handle != nullptr) {
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

    template <class Handle>
    std::vector<void*>& handles() {
        static char key;
        return m_handles[&key];
    }

    int number() {
        static const int odd[] = {INT_MIN,           -20000,          -1, 0, 1, 20000, INT_MAX,
                                  CHART_TRANSPARENT, CHART_TEXT_COLOR};
        return below(4) == 0 ? odd[below(std::size(odd))] : static_cast<int>(below(450)) - 50;
    }

    double real() {
        static const double odd[] = {0,
                                     -1,
                                     1e-300,
                                     1e18,
                                     CHART_NO_VALUE,
                                     -CHART_NO_VALUE,
                                     1e308,
                                     std::numeric_limits<double>::infinity(),
                                     -std::numeric_limits<double>::infinity(),
                                     std::numeric_limits<double>::quiet_NaN()};
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
                                            huge.c_str()};
        return texts[below(std::size(texts))];
    }

    std::mt19937 m_random;
    std::vector<double> m_doubles;
    std::vector<int> m_ints;
    std::vector<const char*> m_texts;
    std::map<const void*, std::vector<void*>> m_handles;
    std::vector<void*> m_all;
    std::vector<BaseChart*> m_charts;
    std::vector<RanTable*> m_tables;
    std::vector<ArrayMath*> m_arrays;
    int m_pictures = 0;
    const double* m_outDoubles = nullptr;
    const char* m_outBytes = nullptr;
    int m_outCount = 0;
};

/// Calls an operation of a family with a handle that is not of its kind, and nothing else.
template <class Result, class Handle, class... Args>
requires(!std::is_const_v<Handle>) void expectNothing(const char* name, Result (*operation)(Handle*, Args...),
                                                      void* handle) {
    if constexpr (std::is_void_v<Result>) {
        operation(static_cast<Handle*>(handle), Args{}...);
    } else {
        const Result result = operation(static_cast<Handle*>(handle), Args{}...);
        if constexpr (std::is_same_v<Result, const char*>)
            EXPECT_EQ(std::string(result), "") << name;
        else if constexpr (std::is_same_v<Result, int>)
            EXPECT_TRUE(result == 0 || result == CHART_TRANSPARENT) << name;
        else
            EXPECT_EQ(result, Result{}) << name;
    }
}

/// Operations without a handle: nothing to expect.
template <class Result, class First, class... Args>
requires(!std::is_pointer_v<First> || std::is_const_v<std::remove_pointer_t<First>>) void expectNothing(
    const char*, Result (*)(First, Args...), void*) {}

bool endsWith(std::string_view name, std::string_view end) {
    return name.size() >= end.size() && name.substr(name.size() - end.size()) == end;
}

} // namespace

TEST(Surface, HandlesOfNoOrAnotherKindGiveNothing) {
    ArrayMath* array = CArrayMath_create(nullptr, 0);
    RanTable* table = CRanTable_create(0, 0, 0);
#define OPERATION(name)                                                                                      \
    expectNothing(#name, &name, nullptr);                                                                    \
    expectNothing(#name, &name,                                                                              \
                  std::string_view(#name).starts_with("CArrayMath") ? static_cast<void*>(table)              \
                                                                    : static_cast<void*>(array));
#include "operations.inc"
#undef OPERATION
    CRanTable_destroy(table);
    CArrayMath_destroy(array);
}

TEST(Surface, AnyCallsWithAnyArguments) {
    using Call = void (*)(Caller&);
    std::vector<Call> creators, others;
#define OPERATION(name)                                                                                      \
    if (!endsWith(#name, "_destroy"))                                                                        \
        (endsWith(#name, "_create") ? creators : others).push_back([](Caller& caller) {                      \
            caller.call(&name);                                                                              \
        });
#include "operations.inc"
#undef OPERATION
    ASSERT_EQ(creators.size() + others.size() + 4, 222u);
    for (unsigned seed = 0; seed < 12; ++seed) {
        Caller caller(seed);
        for (const Call create : creators) {
            create(caller);
            create(caller);
        }
        for (int round = 0; round < 6; ++round) {
            for (int i = 0; i < 250; ++i)
                others[caller.below(others.size())](caller);
            caller.drawAll();
        }
        EXPECT_GT(caller.pictures(), 0);
    }
}
