#include "platform/narrow_text.h"
#include <QString>
#include <algorithm>

namespace {

bool isAscii(std::string_view text) {
    return std::all_of(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

#if defined(__unix__) || defined(__APPLE__)

#include <cerrno>
#include <iconv.h>
#include <langinfo.h>
#include <locale.h>

namespace {

bool isContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

/// One conversion descriptor; falls back to UTF-8 on either side where the system does not know a name.
class Converter {
public:
    Converter(const std::string& from, const std::string& to)
        : m_descriptor(iconv_open(to.c_str(), from.c_str())) {
        if (!open())
            m_descriptor = iconv_open("UTF-8", "UTF-8");
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (open())
            iconv_close(m_descriptor);
    }

    bool open() const { return m_descriptor != reinterpret_cast<iconv_t>(-1); }

    /// Converts what it can of `text` onto `result`, and takes it off the front. Returns whether all went
    /// well; if not, the front of `text` is what cannot be converted.
    bool convert(std::string_view& text, std::string& result) const {
        char* from = const_cast<char*>(text.data()); // iconv only reads it
        std::size_t left = text.size();
        const bool good = run(&from, &left, result);
        text.remove_prefix(text.size() - left);
        return good;
    }

    /// Ends the text: an encoding with shift states goes back to its first one.
    void finish(std::string& result) const { run(nullptr, nullptr, result); }

private:
    bool run(char** from, std::size_t* left, std::string& result) const {
        for (;;) {
            char buffer[256];
            char* to = buffer;
            std::size_t room = sizeof buffer;
            const bool failed = iconv(m_descriptor, from, left, &to, &room) == static_cast<std::size_t>(-1);
            const int error = errno;
            result.append(buffer, sizeof buffer - room);
            if (!failed || error != E2BIG)
                return !failed;
        }
    }

    iconv_t m_descriptor;
};

std::string convertAll(std::string_view text, const std::string& from, const std::string& to) {
    const bool toUtf8 = to == "UTF-8";
    const Converter converter(from, to);
    std::string result;
    if (!converter.open())
        return std::string(text.size(), '?');
    while (!converter.convert(text, result) && !text.empty()) {
        // What is skipped is one byte of narrow text, or one whole character of UTF-8 that cannot be had.
        text.remove_prefix(1);
        while (!text.empty() && isContinuation(text.front()) && from == "UTF-8")
            text.remove_prefix(1);
        // The stand-in goes the same way as the text, so that an encoding with shift states stays in step.
        std::string_view standIn = toUtf8 ? std::string_view("\xEF\xBF\xBD") : std::string_view("?");
        if (toUtf8)
            result += standIn;
        else
            converter.convert(standIn, result);
    }
    converter.finish(result);
    return result;
}

} // namespace

namespace platform {

const std::string& NarrowCodeset() {
    static const std::string codeset = [] {
        std::string name;
        if (const locale_t locale = newlocale(LC_CTYPE_MASK, "", nullptr)) {
            name = nl_langinfo_l(CODESET, locale);
            freelocale(locale);
        }
        const bool none = name.empty() || name == "ANSI_X3.4-1968" || name == "US-ASCII" || name == "ASCII";
        return none ? std::string("UTF-8") : name;
    }();
    return codeset;
}

} // namespace platform

#else

#include <windows.h>

namespace platform {

const std::string& NarrowCodeset() {
    static const std::string codeset = GetACP() == CP_UTF8 ? "UTF-8" : "CP" + std::to_string(GetACP());
    return codeset;
}

} // namespace platform

namespace {

/// The number of a code page by its name, "CP" and digits; that of UTF-8 where there is no such page.
unsigned codePage(const std::string& name) {
    const unsigned page =
        name.rfind("CP", 0) == 0 ? QString::fromStdString(name.substr(2)).toUInt() : CP_UTF8;
    return page != CP_ACP && IsValidCodePage(page) ? page : CP_UTF8;
}

/// One character after the other, so that what cannot be converted takes nothing along.
QString decode(std::string_view text, unsigned page) {
    QString result;
    while (!text.empty()) {
        const bool two = IsDBCSLeadByteEx(page, static_cast<BYTE>(text.front())) && text.size() > 1;
        wchar_t wide[4];
        int taken = two ? 2 : 1;
        const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, text.data(), taken, wide, 4);
        if (count > 0) {
            result += QString::fromWCharArray(wide, count);
        } else {
            result += QChar(QChar::ReplacementCharacter);
            taken = 1;
        }
        text.remove_prefix(static_cast<std::size_t>(taken));
    }
    return result;
}

std::string encode(const QString& text, unsigned page) {
    std::string result;
    for (qsizetype at = 0; at < text.size();) {
        const bool pair = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        wchar_t wide[2];
        const auto taken = static_cast<int>(text.mid(at, pair ? 2 : 1).toWCharArray(wide));
        char narrow[8];
        BOOL lacks = FALSE;
        const int count = WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, wide, taken, narrow, sizeof narrow,
                                              nullptr, &lacks);
        if (count > 0 && !lacks)
            result.append(narrow, static_cast<std::size_t>(count));
        else
            result += '?';
        at += taken;
    }
    return result;
}

/// Between two encodings, one of which is UTF-8, whose faults the toolkit knows.
std::string convertAll(std::string_view text, const std::string& from, const std::string& to) {
    const unsigned fromPage = codePage(from), toPage = codePage(to);
    const QString decoded = fromPage == CP_UTF8
                                ? QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                                : decode(text, fromPage);
    return toPage == CP_UTF8 ? decoded.toStdString() : encode(decoded, toPage);
}

} // namespace

#endif

namespace platform {

std::string NarrowToUtf8(std::string_view text, const std::string& codeset) {
    return isAscii(text) ? std::string(text) : convertAll(text, codeset, "UTF-8");
}

std::string Utf8ToNarrow(std::string_view text, const std::string& codeset) {
    return isAscii(text) ? std::string(text) : convertAll(text, "UTF-8", codeset);
}

QString NarrowToText(std::string_view text) {
    return QString::fromStdString(NarrowToUtf8(text));
}

std::string TextToNarrow(const QString& text) {
    return Utf8ToNarrow(text.toStdString());
}

} // namespace platform
