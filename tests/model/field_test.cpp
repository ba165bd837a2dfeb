// The fields of all value classes: defaults, order of declaration, and that copies take them along.

#include "tests/model/field_rows.h"
#include <chrono>
#include <gtest/gtest.h>
#include <set>

using model_test::FieldRow;

namespace {

template <class Check>
void forEachField(Check check) {
    for (const auto* rows : {&model_test::layoutFields, &model_test::xyFields, &model_test::roundFields,
                             &model_test::financeFields})
        for (const FieldRow& row : *rows) {
            SCOPED_TRACE(std::string(row.owner) + "::" + row.name);
            check(row);
        }
}

/// A day as the fake surface gives its midnight.
double midnight(std::chrono::year_month_day day) {
    return static_cast<int>(day.year()) * 10000.0 + static_cast<unsigned>(day.month()) * 100.0 +
           static_cast<unsigned>(day.day());
}

std::chrono::year_month_day today() {
    return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
}

} // namespace

TEST(Fields, HaveTheirDefaults) {
    forEachField([](const FieldRow& row) { EXPECT_EQ(row.shown(), row.expected); });
}

TEST(Fields, StandInTheirOrder) {
    const FieldRow* last = nullptr;
    forEachField([&](const FieldRow& row) {
        if (last && std::string(last->owner) == row.owner)
            EXPECT_LT(last->offset(), row.offset());
        last = &row;
    });
}

TEST(Fields, AreCopiedAndAssigned) {
    forEachField([](const FieldRow& row) { EXPECT_EQ(row.copied(), ""); });
}

TEST(Fields, DateLimitsAreTodayAndTheSameDayOfTheNextMonth) {
    std::chrono::year_month_day day;
    CXYChartAxis axis;
    do { // once more if midnight passes in between
        day = today();
        axis = CXYChartAxis();
    } while (day != today());
    EXPECT_EQ(axis.m_dateLowerLimit, midnight(day));
    const bool december = day.month() == std::chrono::December;
    EXPECT_EQ(axis.m_dateUpperLimit,
              midnight({december ? day.year() + std::chrono::years(1) : day.year(),
                        december ? std::chrono::January : day.month() + std::chrono::months(1), day.day()}));
    axis.m_dateLowerLimit = 1;
    axis.m_dateUpperLimit = 2;
    const CXYChartAxis copy = axis;
    EXPECT_EQ(copy.m_dateLowerLimit, 1) << "a copy does not ask the clock";
    EXPECT_EQ(copy.m_dateUpperLimit, 2);
}

TEST(Fields, SeedsDifferBetweenLayersAndStayInCopies) {
    std::set<int> seeds;
    for (int i = 0; i < 8; i++) {
        const CXYLineLayer line;
        const CPolarAreaLayer area;
        seeds.insert(line.GetSeed());
        seeds.insert(area.GetSeed());
        EXPECT_EQ(CXYLineLayer(line).GetSeed(), line.GetSeed());
        CPolarAreaLayer assigned;
        assigned = area;
        EXPECT_EQ(assigned.GetSeed(), area.GetSeed());
    }
    EXPECT_GT(seeds.size(), 12U);
    EXPECT_GE(*seeds.begin(), 0);
}
