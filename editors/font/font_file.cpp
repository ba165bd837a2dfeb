#include "editors/font/font_file.h"

#include "platform/narrow_text.h"

#include <QByteArray>
#include <QFile>
#include <QLocale>
#include <cstring>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

namespace {

constexpr unsigned Tag(char a, char b, char c, char d) {
    return static_cast<unsigned>(a) << 24 | static_cast<unsigned>(b) << 16 | static_cast<unsigned>(c) << 8 |
           static_cast<unsigned>(d);
}

constexpr unsigned kCollection = Tag('t', 't', 'c', 'f');
constexpr unsigned kTrueType = 0x00010000;
constexpr unsigned kFullName = 4; // name id
constexpr unsigned kNoLanguage = ~0U;
constexpr unsigned kEnglish = 1033;
constexpr unsigned kJapanese = 1041;
constexpr unsigned kKorean = 1042;

/// The one file that is open.
std::span<const unsigned char> g_view;

/// Some bytes of the open file, or none if they are not all there.
std::span<const unsigned char> Bytes(std::uint64_t offset, std::uint64_t length) {
    if (offset > g_view.size() || length > g_view.size() - offset)
        return {};
    return g_view.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(length));
}

std::optional<unsigned> Read16(std::uint64_t offset) {
    const auto bytes = Bytes(offset, 2);
    return bytes.empty() ? std::nullopt : std::optional(bytes[0] * 256U + bytes[1]);
}

std::optional<unsigned> Read32(std::uint64_t offset) {
    const auto high = Read16(offset);
    const auto low = Read16(offset + 2);
    return high && low ? std::optional(*high << 16 | *low) : std::nullopt;
}

class COpenFont {
public:
    explicit COpenFont(const char* path) : m_file(QString::fromStdString(platform::NarrowToUtf8(path))) {
        if (m_file.open(QIODevice::ReadOnly)) {
            const qint64 size = m_file.size();
            if (const uchar* bytes = size > 0 ? m_file.map(0, size) : nullptr)
                g_view = {bytes, static_cast<std::size_t>(size)};
        }
    }
    COpenFont(const COpenFont&) = delete;
    COpenFont& operator=(const COpenFont&) = delete;
    ~COpenFont() { g_view = {}; }

private:
    QFile m_file; // takes the view with it
};

/// The name of the record that the language preference takes; null if there is none or the table is damaged.
std::optional<QString> NameIn(std::uint64_t table, qsizetype longest) {
    const int preference = NameLanguagePreference();
    const unsigned native = preference == 932 ? kJapanese : preference == 949 ? kKorean : kNoLanguage;
    const auto count = Read16(table + 2);
    const auto storage = Read16(table + 4);
    if (!count || !storage)
        return std::nullopt;
    std::optional<QString> name;
    for (unsigned i = 0; i < *count; ++i) {
        const auto record = Bytes(table + 6 + 12ULL * i, 12);
        if (record.empty())
            return std::nullopt;
        const auto field = [record](std::size_t n) { return record[2 * n] * 256U + record[2 * n + 1]; };
        const bool candidate = (field(0) == 0 || field(0) == 3) && field(3) == kFullName;
        const bool taken = field(2) == native || (field(2) == kEnglish && !name);
        if (!candidate || !taken)
            continue;
        const unsigned length = field(4);
        const auto text = Bytes(table + *storage + field(5), length);
        if (text.size() != length)
            return std::nullopt;
        QString units;
        for (std::size_t at = 0; at + 1 < text.size() && units.size() < longest; at += 2)
            units += QChar(static_cast<char16_t>(text[at] * 256U + text[at + 1]));
        name = units;
    }
    return name;
}

} // namespace

int NameLanguagePreference() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QByteArray locale;
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (locale.isEmpty())
            locale = qgetenv(variable);
    // "ja" and "ko" alone or before a country or an encoding; "kok" is another language.
    const auto is = [&locale](const char* language) {
        return locale.startsWith(language) &&
               std::strchr("_.@", locale.size() > 2 ? locale[2] : '\0') != nullptr;
    };
    return is("ja") ? 932 : is("ko") ? 949 : 1252;
#else
    const QLocale::Language language = QLocale::system().language();
    return language == QLocale::Japanese ? 932 : language == QLocale::Korean ? 949 : 1252;
#endif
}

int FindTable(int faceIndex, unsigned tag, int* faceCount) {
    std::uint64_t face = 0; // where its header is
    const auto version = Read32(0);
    if (version == kCollection) {
        const auto count = Read32(8);
        // No more faces than there is room for their offsets.
        if (!count || Bytes(12, 4ULL * *count).size() != 4ULL * *count ||
            *count > std::numeric_limits<int>::max() / 4)
            return -1;
        *faceCount = static_cast<int>(*count);
        if (faceIndex < 0 || faceIndex >= *faceCount)
            return -1;
        face = Read32(12 + 4ULL * static_cast<unsigned>(faceIndex)).value_or(0);
        if (Read32(face) != kTrueType)
            return -1;
    } else if (version == kTrueType) {
        *faceCount = 1;
    } else {
        return -1;
    }
    const unsigned tables = Read16(face + 4).value_or(0);
    for (unsigned i = 0; i < tables; ++i) {
        const std::uint64_t entry = face + 12 + 16ULL * i;
        const auto offset = Read32(entry + 8);
        if (!offset)
            return -1;
        if (Read32(entry) == tag)
            return *offset <= std::numeric_limits<int>::max() ? static_cast<int>(*offset) : -1;
    }
    return -1;
}

int ReadFaceName(const char* path, char* out, unsigned outLength, int faceIndex) {
    if (out == nullptr || outLength == 0)
        return 0;
    out[0] = '\0';
    const COpenFont open(path);
    int faceCount = 0;
    const int table = FindTable(faceIndex, Tag('n', 'a', 'm', 'e'), &faceCount);
    if (table <= 0)
        return 0;
    std::optional<QString> name = NameIn(static_cast<std::uint64_t>(table), outLength - 1);
    if (!name)
        return 0;
    // Cut by whole characters, whatever the encoding makes of them.
    std::string narrow = platform::Utf8ToNarrow(name->toStdString());
    while (narrow.size() >= outLength) {
        name->chop(name->back().isLowSurrogate() ? 2 : 1);
        narrow = platform::Utf8ToNarrow(name->toStdString());
    }
    std::memcpy(out, narrow.c_str(), narrow.size() + 1);
    return faceCount;
}
