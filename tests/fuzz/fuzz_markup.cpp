#include "engine/text/markup.h"
#include <cstddef>
#include <cstdint>

// Runs hold no line break and together no more bytes than the text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto lines = chartdraw::parseMarkup(text);
    std::size_t bytes = 0;
    for (const auto& line : lines) {
        for (const auto& run : line) {
            bytes += run.text.size();
            if (run.text.empty() || run.text.find_first_of("\r\n") != run.text.npos) __builtin_trap();
        }
    }
    if (lines.empty() || bytes > size) __builtin_trap();
    return 0;
}
