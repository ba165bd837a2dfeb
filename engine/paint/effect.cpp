#include "engine/paint/effect.h"

#include <algorithm>
#include <cstdint>

namespace chartdraw {

namespace {

// A token is kind (8 bits, above every border width), direction (4), glare (4), size (16).
constexpr std::uint32_t kSoftTag = 0x53;
constexpr std::uint32_t kGlassTag = 0x47;

int limitedDirection(int direction) {
    return direction == 4 || direction == 6 || direction == 2 ? direction : 8;
}

int token(std::uint32_t tag, int direction, int glare, int size) {
    const int limited = std::clamp(size, -kMaxEffectSize, kMaxEffectSize);
    return static_cast<int>(tag << 24 | static_cast<std::uint32_t>(limitedDirection(direction)) << 20 |
                            static_cast<std::uint32_t>(glare) << 16 |
                            static_cast<std::uint32_t>(std::abs(limited)));
}

} // namespace

Effect Effect::decode(int value) {
    const auto bits = static_cast<std::uint32_t>(value);
    const std::uint32_t tag = bits >> 24;
    if (tag == kSoftTag || tag == kGlassTag) {
        const bool glass = tag == kGlassTag;
        return {.type = glass ? Type::Glass : Type::SoftLighting,
                .size = std::min(static_cast<int>(bits & 0xffff), kMaxEffectSize),
                .direction = limitedDirection(static_cast<int>(bits >> 20 & 0xf)),
                .glare = glass ? ((bits >> 16 & 0xf) == 2 ? 2 : 3) : 0};
    }
    const int size = std::clamp(value, -kMaxEffectSize, kMaxEffectSize);
    return {.type = size == 0 ? Type::Flat : Type::Border, .size = size};
}

int softLighting(int direction, int size) {
    return token(kSoftTag, direction, 0, size);
}

int glassEffect(int glare, int direction, int size) {
    return token(kGlassTag, direction, glare == 2 ? 2 : 3, size);
}

} // namespace chartdraw
