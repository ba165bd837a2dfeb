#pragma once
// The pixels of a bitmap file of 24 bits a pixel, rows bottom up.

#include <string_view>

/// 0xRRGGBB at (x, y) from the top left corner.
inline int pixelAt(std::string_view file, int x, int y) {
    const auto byte = [&](int place) {
        return static_cast<int>(static_cast<unsigned char>(file[static_cast<std::size_t>(place)]));
    };
    const auto field = [&](int place) { return byte(place) | byte(place + 1) << 8 | byte(place + 2) << 16; };
    const int rowBytes = (field(18) * 3 + 3) / 4 * 4;
    return field(field(10) + (field(22) - 1 - y) * rowBytes + x * 3);
}
