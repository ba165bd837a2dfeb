#pragma once
// The container that TrueType and OpenType files and collections have in common: headers and table
// directories.

#include <QByteArrayView>
#include <cstdint>
#include <vector>

namespace platform {

constexpr std::uint32_t SfntTag(const char (&text)[5]) {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | static_cast<unsigned char>(text[i]);
    return value;
}

constexpr std::uint32_t kTrueType = 0x00010000; ///< the version of a face with TrueType outlines

/// A view of the bytes of a font file, which must outlive it. Nothing is trusted: what lies outside is not
/// there.
class Sfnt {
public:
    static constexpr std::int64_t kHeaderSize = 12; ///< of a table directory
    static constexpr std::int64_t kRecordSize = 16;

    struct Table {
        std::uint32_t tag;
        std::int64_t offset, length; ///< as the directory has them
    };

    explicit Sfnt(QByteArrayView file = {}) : m_file(file) {}

    // Big-endian numbers; 0 where the file does not have all of their bytes.
    std::uint16_t U16(std::int64_t at) const;
    std::uint32_t U32(std::int64_t at) const;
    /// Some bytes, empty if they are not all there.
    QByteArrayView Bytes(std::int64_t offset, std::int64_t length) const;

    /// Of a collection whose list of faces is all there; 1 for any other file.
    int FaceCount() const;
    /// Where the table directory of a face begins, -1 for none. The faces of a collection count from 0.
    std::int64_t Directory(int face) const;
    /// The directory's records, empty unless all of them are there.
    std::vector<Table> Tables(std::int64_t directory) const;

private:
    bool IsCollection() const { return U32(0) == SfntTag("ttcf"); }

    QByteArrayView m_file;
};

} // namespace platform
