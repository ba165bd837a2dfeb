#include "editors/font/font_file.h"

#include "platform/fonts/sfnt.h"
#include "platform/narrow_text.h"

#include <QByteArray>
#include <QFile>
#include <QLocale>
#include <cstring>
#include <limits>
#include <optional>

namespace {

constexpr unsigned kFullName = 4; // name id
constexpr unsigned kNoLanguage = ~0U;
constexpr unsigned kEnglish = 1033;
constexpr unsigned kJapanese = 1041;
constexpr unsigned kKorean = 1042;

/// The one file that is open.
platform::Sfnt g_open;

class COpenFont {
public:
    explicit COpenFont(const char* path) : m_file(QString::fromStdString(platform::NarrowToUtf8(path))) {
        if (m_file.open(QIODevice::ReadOnly)) {
            const qint64 size = m_file.size();
            if (const uchar* bytes = size > 0 ? m_file.map(0, size) : nullptr)
                g_open = platform::Sfnt(QByteArrayView(bytes, size));
        }
    }
    COpenFont(const COpenFont&) = delete;
    COpenFont& operator=(const COpenFont&) = delete;
    ~COpenFont() { g_open = platform::Sfnt(); }

private:
    QFile m_file; // takes the view with it
};

/// The name of the record that the language preference takes; null if there is none or the table is damaged.
std::optional<QString> NameIn(std::int64_t table, qsizetype longest) {
    const int preference = NameLanguagePreference();
    const unsigned native = preference == 932 ? kJapanese : preference == 949 ? kKorean : kNoLanguage;
    if (g_open.Bytes(table, 6).isEmpty())
        return std::nullopt;
    const int count = g_open.U16(table + 2);
    const std::int64_t storage = table + g_open.U16(table + 4);
    std::int64_t text = -1;
    int length = 0;
    for (int i = 0; i < count; ++i) {
        const std::int64_t record = table + 6 + 12 * i;
        if (g_open.Bytes(record, 12).isEmpty())
            return std::nullopt;
        const auto field = [record](int n) -> unsigned { return g_open.U16(record + 2 * n); };
        const bool candidate = (field(0) == 0 || field(0) == 3) && field(3) == kFullName;
        const bool taken = field(2) == native || (field(2) == kEnglish && text < 0);
        if (!candidate || !taken)
            continue;
        length = static_cast<int>(field(4));
        text = storage + field(5);
        if (g_open.Bytes(text, length).size() != length)
            return std::nullopt;
    }
    if (text < 0)
        return std::nullopt;
    QString name;
    for (int at = 0; at + 1 < length && name.size() < longest; at += 2)
        name += QChar(g_open.U16(text + at));
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
    const bool collection = g_open.U32(0) == platform::SfntTag("ttcf");
    if (!collection && g_open.U32(0) != platform::kTrueType)
        return -1;
    *faceCount = g_open.FaceCount();
    const std::int64_t face = g_open.Directory(collection ? faceIndex : 0);
    if (face < 0 || g_open.U32(face) != platform::kTrueType)
        return -1;
    for (const platform::Sfnt::Table& table : g_open.Tables(face))
        if (table.tag == tag)
            return table.offset <= std::numeric_limits<int>::max() ? static_cast<int>(table.offset) : -1;
    return -1;
}

int ReadFaceName(const char* path, char* out, unsigned outLength, int faceIndex) {
    if (out == nullptr || outLength == 0)
        return 0;
    out[0] = '\0';
    const COpenFont open(path);
    int faceCount = 0;
    const int table = FindTable(faceIndex, platform::SfntTag("name"), &faceCount);
    if (table <= 0)
        return 0;
    std::optional<QString> name = NameIn(table, outLength - 1);
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
