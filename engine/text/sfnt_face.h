#pragma once
// One face of a font file as a font of its own. A system picks fonts by family name, and several files may
// carry the same one; a copy of the face under a name that nothing else has is picked without doubt.

#include <QByteArray>
#include <optional>
#include <string_view>

namespace chartdraw {

constexpr qsizetype kMaxFontFile = 64 * 1024 * 1024; ///< bytes

struct SfntFace {
    QByteArray data;   ///< a font file with one face
    bool bold = false; ///< what the face says of itself
    bool italic = false;
};

/// The face number `index` of a TrueType or OpenType file or collection, with `family` (ASCII) as its family
/// name. None when the bytes are no such font, are damaged or larger than kMaxFontFile, or have no such face.
std::optional<SfntFace> extractFace(const QByteArray& file, int index, std::string_view family);

} // namespace chartdraw
