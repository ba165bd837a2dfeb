#include "engine/text/sfnt_face.h"
#include <cstddef>
#include <cstdint>

// The first byte picks the face, the rest is the font file. A face taken from the result must be the same face.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const QByteArray file(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
    if (const auto face = chartdraw::extractFace(file, data[0] - 1, "name")) {
        const auto again = chartdraw::extractFace(face->data, 0, "name");
        if (!again || again->data != face->data) __builtin_trap();
    }
    return 0;
}
