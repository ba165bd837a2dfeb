#include "engine/text/sfnt_face.h"

#include "platform/fonts/sfnt.h"

#include <QtEndian>
#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace chartdraw {

using platform::Sfnt;

namespace {

constexpr auto tag = [](const char (&text)[5]) { return platform::SfntTag(text); };
constexpr std::int64_t kHeaderSize = Sfnt::kHeaderSize;
constexpr std::int64_t kRecordSize = Sfnt::kRecordSize;
constexpr int kMaxTables = 256;

struct Table {
    std::uint32_t tag = 0;
    QByteArrayView bytes;
};

template <class Number>
void append(QByteArray& out, Number number) {
    char bytes[sizeof(Number)];
    qToBigEndian(number, bytes);
    out.append(bytes, sizeof(Number));
}

void append16(QByteArray& out, std::int64_t number) {
    append(out, static_cast<std::uint16_t>(number));
}

void append32(QByteArray& out, std::int64_t number) {
    append(out, static_cast<std::uint32_t>(number));
}

void padTo4(QByteArray& out) {
    out.append((4 - out.size() % 4) % 4, '\0');
}

/// The tables of a face, empty when the directory is not sound.
std::vector<Table> readTables(const Sfnt& file, std::int64_t directory) {
    const std::vector<Sfnt::Table> records = file.Tables(directory);
    std::vector<Table> tables;
    if (std::ssize(records) > kMaxTables)
        return tables;
    std::int64_t total = 0;
    for (const Sfnt::Table& record : records) {
        total += record.length; // Tables may share bytes, so that a small file could make a huge copy.
        const QByteArrayView bytes = file.Bytes(record.offset, record.length);
        if (bytes.size() != record.length || total > kMaxFontFile)
            return {};
        tables.push_back({record.tag, bytes});
    }
    return tables;
}

QByteArray nameTable(std::string_view family) {
    const std::string name(family);
    const std::pair<int, std::string> records[] = {
        {1, name}, {2, "Regular"}, {3, name}, {4, name}, {6, name},
    };
    QByteArray out, storage;
    append16(out, 0);
    append16(out, std::ssize(records));
    append16(out, 6 + 12 * std::ssize(records));
    for (const auto& [id, text] : records) {
        // Platform 3, encoding 1, language 0x409: UTF-16, English.
        for (const std::int64_t field : {3, 1, 0x409, id})
            append16(out, field);
        append16(out, 2 * std::ssize(text));
        append16(out, storage.size());
        for (const char c : text)
            append16(storage, static_cast<unsigned char>(c));
    }
    return out + storage;
}

QByteArrayView find(const std::vector<Table>& tables, std::uint32_t wanted) {
    const auto found = std::ranges::find(tables, wanted, &Table::tag);
    return found == tables.end() ? QByteArrayView() : found->bytes;
}

/// Bold and italic as font engines decide it, so that none of them adds a style to a face that has it.
void readStyle(const std::vector<Table>& tables, SfntFace& face) {
    const QByteArrayView os2 = find(tables, tag("OS/2"));
    if (os2.size() >= 64) {
        const int selection = Sfnt(os2).U16(62);
        face.bold = selection & 0x20;
        face.italic = selection & 0x201; // italic or oblique
    } else {
        const int style = Sfnt(find(tables, tag("head"))).U16(44);
        face.bold = style & 1;
        face.italic = style & 2;
    }
}

QByteArray assemble(std::uint32_t version, const std::vector<Table>& tables) {
    const std::int64_t count = std::ssize(tables);
    std::int64_t power = 1, log = 0;
    while (power * 2 <= count) {
        power *= 2;
        ++log;
    }
    QByteArray directory, body;
    append32(directory, version);
    for (const std::int64_t field : {count, power * kRecordSize, log, (count - power) * kRecordSize})
        append16(directory, field);
    const std::int64_t bodyStart = kHeaderSize + count * kRecordSize;
    for (const Table& table : tables) {
        const std::int64_t start = body.size();
        body.append(table.bytes);
        padTo4(body);
        append32(directory, table.tag);
        append32(directory, 0); // the sum of the table, which font engines do not look at
        append32(directory, bodyStart + start);
        append32(directory, table.bytes.size());
    }
    return directory + body;
}

} // namespace

std::optional<SfntFace> extractFace(const QByteArray& file, int index, std::string_view family) {
    if (file.size() > kMaxFontFile)
        return std::nullopt;
    const Sfnt reader(file);
    const std::int64_t directory = reader.Directory(index);
    const std::uint32_t version = directory < 0 ? 0 : reader.U32(directory);
    if (version != platform::kTrueType && version != tag("OTTO") && version != tag("true"))
        return std::nullopt;
    std::vector<Table> tables = readTables(reader, directory);
    for (const std::uint32_t needed : {tag("cmap"), tag("head"), tag("hhea"), tag("hmtx"), tag("maxp")})
        if (find(tables, needed).isEmpty())
            return std::nullopt;
    SfntFace face;
    readStyle(tables, face);
    // A signature would no longer hold.
    std::erase_if(tables, [](const Table& t) { return t.tag == tag("name") || t.tag == tag("DSIG"); });
    const QByteArray name = nameTable(family);
    tables.push_back({tag("name"), name});
    std::ranges::stable_sort(tables, {}, &Table::tag); // of two of one name the first stays the first
    face.data = assemble(version, tables);
    return face;
}

} // namespace chartdraw
