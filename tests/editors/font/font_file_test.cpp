#include "editors/font/font_file.h"
#include "tests/editors/font/font_builder.h"
#include "tests/expect.h"
#include <QTemporaryDir>

namespace {
constexpr int kKorean = 1042;
constexpr int kJapanese = 1041;
const QString kHangul = QStringLiteral("\uB098\uB214");
const QString kKana = QStringLiteral("\u30B4\u30B7");

class FontFile : public testing::Test {
protected:
    /// The number of faces and the name, as in "1 Some Sans", of a face of a file with those bytes.
    std::string Read(const QByteArray& bytes, int face = 0, unsigned room = 512) {
        WriteFile(m_path, bytes);
        std::string out(room, '#');
        const int count = ReadFaceName(m_path.toUtf8().constData(), out.data(), room, face);
        EXPECT_NE(out.find('\0'), std::string::npos) << "the name has no end";
        return count > 0 ? std::to_string(count) + ' ' + out.c_str() : "0";
    }
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath("font.ttf");
};
} // namespace

TEST_F(FontFile, LanguageFollowsTheLocale) {
    const std::tuple<const char*, const char*, const char*, int> cases[] = {
        {"ja_JP.UTF-8", "", "", 932},  {"ko_KR.eucKR", "", "", 949},
        {"ja", "", "", 932},           {"ko@dict", "", "", 949},
        {"", "ko_KR", "ja_JP", 949},   {"", "", "ja_JP.SJIS", 932},
        {"C", "ko_KR", "ko_KR", 1252}, {"", "", "", 1252},
        {"kok_IN", "", "", 1252},      {"jam_JM", "", "", 1252},
        {"de_DE.UTF-8", "", "", 1252}, {"k", "", "", 1252},
    };
    for (const auto& [forAll, forTypes, language, preference] : cases) {
        const Environment all("LC_ALL", forAll), ctype("LC_CTYPE", forTypes), lang("LANG", language);
        EXPECT_EQ(NameLanguagePreference(), preference) << forAll << ' ' << forTypes << ' ' << language;
    }
}

TEST_F(FontFile, TakesTheNameInTheRightLanguage) {
    const NameRecord english{.text = "English"};
    const NameRecord second{.text = "Second"};
    const NameRecord korean{.language = kKorean, .text = kHangul};
    const NameRecord korean2{.language = kKorean, .text = kHangul + kHangul};
    const NameRecord japanese{.language = kJapanese, .text = kKana};
    const NameRecord family{.nameId = 1, .text = "Family"};
    const NameRecord mac{.platform = 1, .language = 0, .text = "Mac"};
    const NameRecord mac1033{.platform = 1, .text = "Mac"};
    const NameRecord unicode{.platform = 0, .encoding = 3, .language = 0, .text = "Unicode"};
    const NameRecord unicode1033{.platform = 0, .encoding = 77, .text = "Unicode"};
    // the name in a Korean, a Japanese and another locale, null for none
    const std::tuple<std::vector<NameRecord>, QString, QString, QString> cases[] = {
        {{english, korean}, kHangul, "English", "English"},
        {{korean, english}, kHangul, "English", "English"},
        {{japanese, english, korean}, kHangul, kKana, "English"},
        {{korean}, kHangul, {}, {}},
        {{japanese}, {}, kKana, {}},
        {{english, second}, "English", "English", "English"},                  // the first English one
        {{korean, english, korean2}, kHangul + kHangul, "English", "English"}, // the last native one
        {{family, mac, mac1033}, {}, {}, {}},
        {{mac1033, family, english}, "English", "English", "English"},
        {{unicode}, {}, {}, {}},
        {{unicode, english}, "English", "English", "English"},
        {{unicode1033, english}, "Unicode", "Unicode", "Unicode"}, // the encoding is of no interest
        {{}, {}, {}, {}},
    };
    for (const auto& [records, inKorean, inJapanese, elsewhere] : cases) {
        const QByteArray font = Font(records);
        for (const auto& [locale, name] :
             {std::pair("ko_KR.UTF-8", inKorean), {"ja_JP.UTF-8", inJapanese}, {"C.UTF-8", elsewhere}}) {
            const Environment all("LC_ALL", locale);
            EXPECT_EQ(Read(font), name.isNull() ? "0" : "1 " + name.toStdString())
                << locale << " of " << records.size();
        }
    }
}

TEST_F(FontFile, CutsNamesToTheRoom) {
    const QByteArray font = Font({{.text = "Sans"}});
    EXPECT_EQS((Read(font, 0, 5), "1 Sans"), (Read(font, 0, 4), "1 San"), (Read(font, 0, 1), "1 "));
    char untouched = '#';
    EXPECT_EQS((ReadFaceName(m_path.toUtf8().constData(), &untouched, 0, 0), 0), (untouched, '#'));
    // By whole characters: three bytes each in UTF-8, and four for one of two units.
    EXPECT_EQ(Read(Font({{.text = kHangul}}), 0, 6), "1 " + kHangul.left(1).toStdString());
    EXPECT_EQ(Read(Font({{.text = QStringLiteral("a\U0001F600")}}), 0, 4), "1 a");
    EXPECT_EQ(Read(Font({{.text = QString(5000, u'x')}})), "1 " + std::string(511, 'x'));
}

TEST_F(FontFile, RefusesWhatIsNoTrueType) {
    const std::vector<NameRecord> records{{.text = "Sans"}};
    EXPECT_EQ(Read(Font(records, 0x4F54544F)), "0"); // OTTO
    EXPECT_EQ(Read(Font(records, 0x74727565)), "0"); // true
    EXPECT_EQS((Read(Font(records, 0x00020000)), "0"), (Read(QByteArray()), "0"), (Read(QByteArray("\0\1", 2)), "0"),
               (Read(Font(records).replace("name", "gnam")), "0"));
    EXPECT_EQ(Read(Font(records).replace(4, 2, Number16(0))), "0"); // no tables
    EXPECT_EQ(Read(Font(records).replace(4, 2, Number16(1))), "0"); // a directory without the names
    char name[8];
    for (const QString& path : {m_folder.filePath("none.ttf"), m_folder.path()}) {
        EXPECT_EQ(ReadFaceName(path.toUtf8().constData(), name, sizeof name, 0), 0);
        EXPECT_STREQ(name, "");
    }
    // In a single font the face number is of no interest.
    EXPECT_EQS((Read(Font(records), 5), "1 Sans"), (Read(Font(records), -5), "1 Sans"));
}

TEST_F(FontFile, ReadsEachFaceOfACollection) {
    const QByteArray collection = Collection({Font({{.text = "One"}}), Font({{.text = "Two"}}),
                                              Font({{.text = "Three"}}, 0x4F54544F), Font({{.text = "Four"}})});
    EXPECT_EQS((Read(collection, 0), "4 One"), (Read(collection, 1), "4 Two"), (Read(collection, 3), "4 Four"));
    for (const int none : {2, 4, -1}) EXPECT_EQ(Read(collection, none), "0");
}

// Every cut, and every number of the header set to what leads far out of the file.
TEST_F(FontFile, ChecksEveryOffset) {
    const QByteArray font = Font({{.text = "Sans"}, {.language = kKorean, .text = kHangul}});
    const QByteArray collection = Collection({font, font});
    const Environment locale("LC_ALL", "ko_KR.UTF-8");
    for (const QByteArray& whole : {font, collection}) {
        const std::string name = Read(whole);
        // The first font of the collection stands behind a header of 20 bytes.
        const qsizetype enough = whole == collection ? 20 + font.size() : font.size();
        for (qsizetype length = 0; length < whole.size(); ++length)
            EXPECT_EQ(Read(whole.left(length)), length < enough ? "0" : name) << length;
        for (qsizetype at = 0; at + 4 <= whole.size(); at += 2) {
            for (const unsigned number : {0xFFFFFFFFU, 0x7FFFFFFFU, 0xFFFF0000U, static_cast<unsigned>(whole.size())}) {
                Read(QByteArray(whole).replace(at, 4, Number32(number)));
                Read(QByteArray(whole).replace(at, 2, Number16(number & 0xFFFF)), 1);
            }
        }
    }
}
