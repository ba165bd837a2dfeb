// The format language with hostile texts: eight bytes of value, then the format. The answer is a text whose
// size is bounded by that of the format.

#include "engine/scale/format.h"
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {
struct Fields final : chartdraw::FieldSource {
    double value = 0;

    chartdraw::FieldValue field(std::string_view name) const override {
        if (name == "value" || name == "percent") return chartdraw::FieldValue::number(value);
        return name == "label" ? chartdraw::FieldValue::text("text") : chartdraw::FieldValue::unknown();
    }
};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Fields fields;
    if (size < sizeof fields.value) return 0;
    std::memcpy(&fields.value, data, sizeof fields.value);
    const std::string_view text(reinterpret_cast<const char*>(data) + sizeof fields.value, size - sizeof fields.value);
    // A number has at most 21 digits with a four-byte separator for each three, 20 decimals and the signs; a
    // single letter of a date becomes "September" or less.
    const std::size_t most = 100 + 10 * text.size();
    if (chartdraw::formatValue(fields.value, text).size() > most) std::abort();
    if (chartdraw::Format(text).apply(fields).size() > most + 70 * (text.size() / 7)) std::abort();
    return 0;
}
