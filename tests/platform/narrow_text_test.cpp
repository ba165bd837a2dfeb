#include "platform/narrow_text.h"
#include "tests/expect.h"

using platform::NarrowToUtf8;
using platform::Utf8ToNarrow;

namespace {
const char* const replacement = "\xEF\xBF\xBD";
} // namespace

TEST(NarrowText, BecomesUtf8) {
    const std::tuple<const char*, const char*, std::string, std::string> cases[] = {
        // Byte values from the published code charts of each encoding.
        {"ASCII as it stands", "CP949", "plot.png", "plot.png"},
        {"nothing", "UTF-8", "", ""},
        {"Korean", "CP949", "\xB1\xD7\xB8\xB2.png", "\xEA\xB7\xB8\xEB\xA6\xBC.png"},
        {"Korean, extended set", "CP949", "\x8C\x63", "\xEB\x98\xA0"},
        {"Japanese, second byte in ASCII", "CP932", "\x95\x5C", "\xE8\xA1\xA8"},
        {"Western", "CP1252", "caf\xE9", "caf\xC3\xA9"},
        {"Western, euro", "CP1252", "5 \x80", "5 \xE2\x82\xAC"},
        {"UTF-8", "UTF-8", "\xE2\x82\xAC", "\xE2\x82\xAC"},
        {"not UTF-8", "UTF-8", "a\xFFz", std::string("a") + replacement + "z"},
        {"cut off in UTF-8", "UTF-8", "a\xE2\x82", std::string("a") + replacement},
        {"surrogate in UTF-8", "UTF-8", "\xED\xA0\x80.", std::string(replacement) + "."},
        {"not Korean", "CP949", "\xFF.\xB1\xD7", std::string(replacement) + ".\xEA\xB7\xB8"},
        {"cut off in Korean", "CP949", "\xB1\xD7\xB1", std::string("\xEA\xB7\xB8") + replacement},
        {"unknown encoding", "no-such-set", "\xC3\xA9\xE9", std::string("\xC3\xA9") + replacement},
    };
    for (const auto& [name, codeset, narrow, utf8] : cases) EXPECT_EQ(NarrowToUtf8(narrow, codeset), utf8) << name;
}

TEST(NarrowText, ComesBack) {
    const std::tuple<const char*, const char*, std::string, std::string> cases[] = {
        {"Korean", "CP949", "\xEA\xB7\xB8\xEB\xA6\xBC.png", "\xB1\xD7\xB8\xB2.png"},
        {"Western", "CP1252", "caf\xC3\xA9", "caf\xE9"},
        {"no such character", "CP1252", "\xEA\xB7\xB8!\xC3\xA9", "?!\xE9"},
        {"not UTF-8", "CP1252", "\xFFq", "?q"},
#ifndef _WIN32 // where no user's encoding has any
        {"shift states end where they began", "ISO-2022-JP", "\xE8\xA1\xA8", "\x1B$BI=\x1B(B"},
#endif
    };
    for (const auto& [name, codeset, utf8, narrow] : cases) EXPECT_EQ(Utf8ToNarrow(utf8, codeset), narrow) << name;
}

TEST(NarrowText, SurvivesLongTextsAndManyFaults) {
    // Longer than any buffer inside, with faults across every boundary.
    std::string narrow;
    std::string utf8;
    for (int i = 0; i < 500; i++) {
        narrow += i % 7 ? "\xB1\xD7" : "\xFF";
        utf8 += i % 7 ? "\xEA\xB7\xB8" : replacement;
    }
    EXPECT_EQ(NarrowToUtf8(narrow, "CP949"), utf8);
}

TEST(NarrowText, TakesTheEncodingFromTheEnvironment) {
    // CTest runs this program with LC_ALL=C.UTF-8, while the process itself stands at "C". Where a program says
    // its encoding itself, this one says UTF-8.
    EXPECT_EQS((platform::NarrowCodeset(), "UTF-8"), (NarrowToUtf8("\xC3\xA9"), "\xC3\xA9"),
               (Utf8ToNarrow("\xC3\xA9"), "\xC3\xA9"));
}
