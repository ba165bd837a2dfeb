#pragma once
// What a recording of a finance chart says, without what every call brings with it.

#include "tests/recorder/recorder.h"
#include <algorithm>
#include <string>
#include <vector>

using Lines = std::vector<std::string>;

/// The calls that make or set something: without casts, getters and arithmetic. Numbers of an array give way
/// to their count.
inline Lines MakingCalls(const recorder::Recording& recording) {
    Lines lines;
    for (std::string line : recording.Lines()) {
        const std::string operation = line.substr(0, line.find('('));
        const auto has = [&](const char* part) { return operation.find(part) != std::string::npos; };
        const bool isCast = !has("_");
        const bool isGetter = has("_get") || has("_xAxis") || has("_yAxis");
        if (isCast || isGetter || has("ArrayMath") || has("formatValue"))
            continue;
        for (std::size_t at = 0; (at = line.find('[', at)) != std::string::npos; ++at) {
            const std::size_t end = line.find(']', at);
            if (line[at + 1] == '{') // a field of a format
                continue;
            const auto begin = line.begin() + static_cast<std::ptrdiff_t>(at);
            const auto commas = std::count(begin, line.begin() + static_cast<std::ptrdiff_t>(end), ',');
            line.replace(at + 1, end - at - 1, end == at + 1 ? "0" : std::to_string(commas + 1));
        }
        lines.push_back(line);
    }
    return lines;
}
