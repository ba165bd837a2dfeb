#include "platform/fonts/sfnt.h"

#include <QtEndian>
#include <limits>

namespace platform {

QByteArrayView Sfnt::Bytes(std::int64_t offset, std::int64_t length) const {
    if (offset < 0 || length < 0 || offset > m_file.size() || length > m_file.size() - offset)
        return {};
    return m_file.sliced(offset, length);
}

std::uint16_t Sfnt::U16(std::int64_t at) const {
    const QByteArrayView bytes = Bytes(at, 2);
    return bytes.isEmpty() ? std::uint16_t{0} : qFromBigEndian<std::uint16_t>(bytes.data());
}

std::uint32_t Sfnt::U32(std::int64_t at) const {
    const QByteArrayView bytes = Bytes(at, 4);
    return bytes.isEmpty() ? 0 : qFromBigEndian<std::uint32_t>(bytes.data());
}

int Sfnt::FaceCount() const {
    if (!IsCollection())
        return 1;
    const std::int64_t count = U32(8);
    const bool all = count <= std::numeric_limits<int>::max() && !Bytes(12, 4 * count).isEmpty();
    return all ? static_cast<int>(count) : 0;
}

std::int64_t Sfnt::Directory(int face) const {
    if (face < 0 || face >= FaceCount())
        return -1;
    if (!IsCollection())
        return 0;
    const std::int64_t offset = U32(12 + 4 * std::int64_t{face});
    return offset == 0 ? -1 : offset;
}

std::vector<Sfnt::Table> Sfnt::Tables(std::int64_t directory) const {
    const std::int64_t count = U16(directory + 4);
    std::vector<Table> tables;
    if (Bytes(directory, kHeaderSize + count * kRecordSize).isEmpty())
        return tables;
    for (std::int64_t i = 0; i < count; ++i) {
        const std::int64_t record = directory + kHeaderSize + i * kRecordSize;
        tables.push_back({U32(record), U32(record + 8), U32(record + 12)});
    }
    return tables;
}

} // namespace platform
