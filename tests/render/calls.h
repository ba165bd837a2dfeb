#pragma once
// A preview without a window, and the calls that a drawing into it makes.

#include "render/chart_preview.h"
#include "tests/expect.h"
#include "tests/recorder/recorder.h"
#include <QImage>
#include <regex>
#include <sstream>
#include <string_view>

class PreviewFake : public CChartPreview {
public:
    PreviewFake() {
        m_layout = &m_ownLayout;
        m_chart = &m_ownXYChart;
        m_polarChart = &m_ownPolarChart;
    }

    int ClientWidth() const override { return 120; }
    int ClientHeight() const override { return 61; }
    void SetScrollSizes() override { ++m_scrollSizesSet; }
    void PaintSample(const char* bytes, int length) override {
        m_painted = QImage::fromData(QByteArray(bytes, length), "BMP");
    }

    int m_scrollSizesSet = 0;
    QImage m_painted; ///< The last direct painting.
};

inline QImage pictureOf(const CChartPreview& view) {
    const auto& bytes = view.m_picture.Bytes();
    return QImage::fromData(QByteArray(bytes.data(), std::ssize(bytes)), "BMP").convertToFormat(QImage::Format_RGB32);
}

/// The calls that make or set something, a line each: without casts, getters and arithmetic. Long arrays of
/// numbers give way to their count.
inline std::string makingCalls(const recorder::Recording& recording) {
    static const std::regex other(
        R"(([A-Za-z]+2[A-Za-z]+|\w+_(get\w*|xAxis|yAxis|angularAxis|radialAxis|formatValue)|CArrayMath\w+)\(.*)");
    static const std::regex numbers(R"(\[[-0-9.e+, ]{40,}\])");
    std::string calls;
    for (std::string line : recording.Lines()) {
        if (std::regex_match(line, other)) continue;
        for (std::smatch found; std::regex_search(line, found, numbers);) {
            const auto count = 1 + std::count(found[0].first, found[0].second, ',');
            line = found.prefix().str() + "[" + std::to_string(count) + "]" + found.suffix().str();
        }
        calls += line + '\n';
    }
    return calls;
}

inline std::string callsOf(void (*routine)(CChartPreview&), CChartPreview& view) {
    const recorder::Recording recording;
    routine(view);
    return makingCalls(recording);
}

/// Sees that `expected` is in `calls`: runs of calls in this order, a line or a part up to "; " each, with "..."
/// between them; and that nothing of `absent` is, words with blanks between them.
inline void expectCalls(const std::string& calls, const char* expected, const char* absent = nullptr) {
    static const std::regex parts("; "), gaps(R"(\.\.\.\n?)");
    const std::string wanted = std::regex_replace(expected + (*expected == '\n' ? 1 : 0), parts, "\n");
    std::size_t at = 0;
    for (std::sregex_token_iterator run(wanted.begin(), wanted.end(), gaps, -1), end; run != end; ++run) {
        const std::size_t found = calls.find(*run, at);
        EXPECT_NE(found, std::string::npos) << *run << " is not in\n" << calls;
        at = found == std::string::npos ? at : found + static_cast<std::size_t>(run->length());
    }
    std::istringstream words(absent ? absent : "");
    for (std::string word; words >> word;)
        EXPECT_EQ(calls.find(word), std::string::npos) << word << " is in\n" << calls;
}

/// What an edit of a new preview makes a drawing routine call.
struct CallCase {
    const char* name;
    void (*routine)(CChartPreview&);
    void (*edit)(PreviewFake& view);
    const char* calls;
    const char* absent = nullptr; ///< beginnings of calls, with blanks between
};

class Calls : public testing::TestWithParam<CallCase> {};

constexpr auto kNameOfCase = [](const auto& test) { return test.param.name; };

/// An edit that is one expression of `view` and of `chart`, its XY chart.
#define EDIT(...)                                                                                                      \
    [](PreviewFake& view) {                                                                                            \
        [[maybe_unused]] CXYChart& chart = view.m_ownXYChart;                                                          \
        __VA_ARGS__;                                                                                                   \
    }
