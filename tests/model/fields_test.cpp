// The tables of fields against the headers, and what is built from them; what fields take from outside.

#include "model/fields/values.h"
#include "tests/model/surface_fake.h"
#include <chrono>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace {
std::string ReadFile(const std::filesystem::path& path) {
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

/// "Class: a b c" for each class that a text declares fields for: as members, or as rows of a table.
std::set<std::string> Declared(const std::string& folder, const char* classes, const char* field) {
    std::set<std::string> found;
    const std::regex classPattern(classes), fieldPattern(field);
    for (const auto& file : std::filesystem::directory_iterator(std::filesystem::path(MODEL_FOLDER) / folder)) {
        const std::string text = ReadFile(file);
        for (std::sregex_iterator c(text.begin(), text.end(), classPattern), end; c != end; ++c) {
            const std::string body = c->str(2);
            std::string row = c->str(1) + ':';
            for (std::sregex_iterator f(body.begin(), body.end(), fieldPattern); f != end; ++f) row += ' ' + f->str(1);
            if (row.back() != ':' && row.find("Mgr:") == std::string::npos) found.insert(row);
        }
    }
    return found;
}

std::chrono::year_month_day today() { return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()); }

/// A day as the fake surface gives its midnight.
double midnight(std::chrono::year_month_day day) {
    return static_cast<int>(day.year()) * 10000.0 + static_cast<unsigned>(day.month()) * 100.0 +
           static_cast<unsigned>(day.day());
}
} // namespace

TEST(Fields, AllStandInTheTables) {
    const auto headers =
        Declared("include/charteditors", R"(class CHARTEDITORS_API (\w+)[^;{]*\{([^}]*(?:\{[^}]*\}[^}]*)*?)\n\};)",
                 R"(\n    (?!void)[\w:]+(?: char)?\*? m_(\w+)(?:\[5\])?(?: = [^;]*)?;)");
    const auto tables = Declared("fields", R"(struct FieldsOf<(\w+)> \{([^;]*;?[^;]*;)\s*\};)", R"(::m_(\w+)[,}])");
    EXPECT_GT(headers.size(), 30U);
    EXPECT_THAT(tables, testing::ContainerEq(headers));
}

TEST(Values, TellWhatDiffersByPathAndWord) {
    CXYChart before;
    CXYChart after = before;
    EXPECT_EQ(model::Differences(before, after), std::vector<model::Difference>());

    after.m_axes.AddAxis(CXYChartAxisMgr::CreateAxis());
    before = after;
    CXYChartAxis stranger;
    after.m_y2Axis.m_syncAxis = after.m_axes.GetAxis(0);
    after.m_x2Axis.m_syncAxis = &stranger;
    after.m_axes.GetAxis(0)->m_scaleType = 3;
    after.m_majorHGridColor.m_color = 0x80FF0001;
    after.m_swapXY = true;
    after.m_xAxis.m_zeroAffinity = 0.1;
    auto* bars = new CXYBarLayer;
    bars->m_seed = 7;
    bars->m_combineMethod = 9;
    bars->m_dataSetColors.push_back({});
    after.m_layers.AddLayer(bars);
    std::vector<std::string> lines;
    for (const auto& difference : model::Differences(before, after))
        if (difference.path.find("dataSetColors[0]") == std::string::npos)
            lines.push_back(difference.path + ": " + difference.from + " to " + difference.to);
    EXPECT_THAT(lines,
                testing::IsSupersetOf({"majorHGridColor.color: 0x00c0c0c0 to 0x80ff0001", "swapXY: false to true",
                                       "xAxis.zeroAffinity: 0 to 0.1", "x2Axis.syncAxis: none to gone",
                                       "y2Axis.syncAxis: none to 0", "axes[0].scaleType: none to date",
                                       "layers: 0 to 1", "layers[0].seed:  to 7", "layers[0].type:  to bar",
                                       "layers[0].combineMethod:  to 9", "layers[0].dataSetColors:  to 1"}));
    EXPECT_EQ(model::Differences(after, before).size(), model::Differences(before, after).size());
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
    const CXYChartAxis copy = axis;
    EXPECT_EQ(copy.m_dateLowerLimit, 1) << "a copy does not ask the clock";
}

TEST(Fields, SeedsDifferBetweenLayersAndStayInCopies) {
    std::set<int> seeds;
    for (int i = 0; i < 8; i++) {
        const CXYLineLayer line;
        const CPolarAreaLayer area;
        seeds.insert(line.GetSeed());
        seeds.insert(area.GetSeed());
        EXPECT_EQ(CXYLineLayer(line).GetSeed(), line.GetSeed());
    }
    EXPECT_GT(seeds.size(), 12U);
    EXPECT_GE(*seeds.begin(), 0);
}
