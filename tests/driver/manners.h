#pragma once
// What every editor owes to its host and its users, whatever it edits.

#include "tests/driver/steps.h"

#if __has_include(<malloc.h>)
#include <malloc.h>
#endif

#include <regex>

namespace driver {
/// OK without an edit gives the object back in every field; Cancel and Esc after edits of every row do too.
template <class Object> void TestWaysOut(const Object& start, const CChartLayout& layout, const Properties& rows) {
    Object object(start);
    EXPECT_TRUE(Edit(object, layout, [](Person& person) {
        for (const QString& tab : person.Tabs()) {
            person.Tab(tab);
            for (int i = 0; i < 40; ++i) person.Leave();
        }
        person.Ok();
    }));
    EXPECT_EQ(Difference(start, object), "") << "OK without an edit";
    const std::function<void(Person&)> ways[] = {
        [](const Person& person) { person.Cancel(); },
        [](const Person& person) { QTest::keyClick(&person.Window(), Qt::Key_Escape); },
        [](const Person& person) { person.Window().close(); }};
    for (const auto& leave : ways) {
        EXPECT_FALSE(Edit(object, layout, [&](Person& person) {
            for (const Property& row : rows)
                Go(person, QString::fromStdString(row.place), [&](Person& there) { Give(there, row); });
            leave(person);
        }));
        EXPECT_EQ(Difference(start, object), "") << "way " << &leave - ways;
    }
}

/// Opening and closing leaves no memory behind. CHART_OPENINGS asks for more than a few.
template <class Object> void TestMemoryIsFlat(const Object& start, const CChartLayout& layout) {
    const auto open = [&](int times) {
        for (int i = 0; i < times; ++i) {
            Object object(start);
            EXPECT_TRUE(Edit(object, layout, [](Person& person) {
                for (const QString& tab : person.Tabs()) person.Tab(tab);
                person.Preview();
                person.Ok();
            }));
        }
    };
    const int times = std::max(20, qEnvironmentVariableIntValue("CHART_OPENINGS"));
    open(10); // fonts, styles and caches come once
#if defined(__GLIBC__)
    const std::size_t before = mallinfo2().uordblks;
    open(times);
    const std::size_t after = mallinfo2().uordblks;
    // Caches may still settle; what leaks grows with the openings.
    EXPECT_LT(after, before + 32768 + static_cast<std::size_t>(times) * 200) << "bytes in use, was " << before;
#else
    open(times);
#endif
}

/// Whatever is done to the editor, numbers stay in the limits of their rows.
template <class Object> void TestAnybody(const Object& start, const CChartLayout& layout, const Properties& rows) {
    Object object(start);
    NeedApplication();
    RandomPerson anybody(1);
    MindSteps(anybody);
    anybody.Use(RandomEventCount(), [&] { Show(object, layout); });
    std::map<std::string, std::string> before;
    for (const auto& [path, text] : model::Values(start)) before[path] = text;
    for (const auto& [path, text] : model::Values(object)) {
        for (const Property& row : rows) {
            const std::string pattern = std::regex_replace(
                std::regex_replace(row.Path(), std::regex(R"([.])"), R"(\.)"), std::regex(R"(\[\d+\])"), R"(\[\d+\])");
            if (!std::regex_match(path, std::regex(pattern)) || (before.contains(path) && before.at(path) == text))
                continue;
            const double value = std::atof(text.c_str());
            EXPECT_TRUE(std::isfinite(value)) << path << ' ' << text;
            if (!text.empty() && text.find_first_not_of("-0123456789.e") == std::string::npos)
                EXPECT_TRUE(value >= row.number.floor && value <= row.number.ceiling) << path << ' ' << text;
        }
    }
}

template <class Object>
void TestEditor(const char* caption, const QStringList& tabs, const Object& start, const CChartLayout& layout,
                const Properties& rows) {
    Object object(start);
    EXPECT_FALSE(Edit(object, layout, [&](const Person& person) {
        EXPECT_EQ(person.Window().windowTitle(), caption);
        EXPECT_EQ(person.Tabs(), tabs);
        person.Cancel();
    }));
    TestWaysOut(start, layout, rows);
    TestMemoryIsFlat(start, layout);
    TestSteps(start, layout, rows);
    TestChanges(start, layout, rows);
    TestSearch(start, layout, rows);
    TestAnybody(start, layout, rows);
}
} // namespace driver
