#pragma once
// Font files made of the tables that a test needs, and real ones put together.

#include <QByteArray>
#include <QFile>
#include <QString>
#include <algorithm>
#include <vector>

struct NameRecord {
    int platform = 3;
    int encoding = 1;
    int language = 1033;
    int nameId = 4;
    QString text;
};

inline QByteArray Number16(unsigned number) {
    return QByteArray(1, static_cast<char>(number >> 8)) + QByteArray(1, static_cast<char>(number));
}
inline QByteArray Number32(unsigned number) { return Number16(number >> 16) + Number16(number); }

inline QByteArray NameTable(const std::vector<NameRecord>& records) {
    QByteArray table = Number16(0) + Number16(static_cast<unsigned>(records.size())) +
                       Number16(6 + 12 * static_cast<unsigned>(records.size()));
    QByteArray storage;
    for (const NameRecord& record : records) {
        QByteArray text;
        for (const QChar unit : record.text) text += Number16(unit.unicode());
        for (const int field : {record.platform, record.encoding, record.language, record.nameId})
            table += Number16(static_cast<unsigned>(field));
        table += Number16(static_cast<unsigned>(text.size())) + Number16(static_cast<unsigned>(storage.size()));
        storage += text;
    }
    return table + storage;
}

/// A header with a directory of a "name" table and one that does not matter, then the tables, for a place in a file.
inline QByteArray FontAt(qsizetype place, const QByteArray& nameTable, unsigned version = 0x00010000) {
    const auto tables = static_cast<unsigned>(place) + 12 + 2 * 16;
    return Number32(version) + Number16(2) + QByteArray(6, '\0') + QByteArray("glyf") + Number32(0) + Number32(tables) +
           Number32(4) + QByteArray("name") + Number32(0) + Number32(tables + 4) +
           Number32(static_cast<unsigned>(nameTable.size())) + QByteArray("GLYF") + nameTable;
}

inline QByteArray Font(const std::vector<NameRecord>& records, unsigned version = 0x00010000) {
    return FontAt(0, NameTable(records), version);
}

/// A collection of whole fonts: each is moved behind the others, with the offsets of its tables.
inline QByteArray Collection(const std::vector<QByteArray>& fonts) {
    const auto count = static_cast<unsigned>(fonts.size());
    QByteArray header = QByteArray("ttcf") + Number32(0x00010000) + Number32(count);
    QByteArray bodies;
    for (QByteArray font : fonts) {
        bodies.resize((bodies.size() + 3) / 4 * 4);
        const auto place = static_cast<unsigned>(12 + 4 * count + bodies.size());
        header += Number32(place);
        const auto byte = [&](qsizetype at) { return static_cast<unsigned>(static_cast<unsigned char>(font[at])); };
        const unsigned tables = byte(4) << 8 | byte(5);
        for (unsigned i = 0; i < tables; ++i) {
            const qsizetype at = 12 + 16 * i + 8;
            const unsigned offset = byte(at) << 24 | byte(at + 1) << 16 | byte(at + 2) << 8 | byte(at + 3);
            font.replace(at, 4, Number32(offset + place));
        }
        bodies += font;
    }
    return header + bodies;
}

inline void WriteFile(const QString& path, const QByteArray& bytes) {
    // Over what is there: some file systems wait for the disk when a file is emptied first.
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || file.write(bytes) != bytes.size() || !file.resize(bytes.size()))
        qFatal("cannot write a test's file");
}

inline QByteArray ReadFile(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Environment {
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name), m_old(qgetenv(name)), m_was(qEnvironmentVariableIsSet(name)) {
        qputenv(name, value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { m_was ? qputenv(m_name, m_old) : qunsetenv(m_name); }

private:
    const char* m_name;
    QByteArray m_old;
    bool m_was;
};
