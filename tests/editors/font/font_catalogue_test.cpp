#include "editors/font/font_catalogue.h"
#include "tests/editors/font/font_builder.h"
#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
class FontCatalogue : public testing::Test {
protected:
    FontCatalogue() { g_fontCatalogueLoaded = false; }
    ~FontCatalogue() override { g_fontCatalogueLoaded = false; }

    void Put(const char* path, const QByteArray& bytes) {
        const QString full = m_root.filePath(path);
        QDir().mkpath(full.left(full.lastIndexOf('/')));
        WriteFile(full, bytes);
    }
    static QByteArray Named(const char* name) { return Font({{.text = QString::fromUtf8(name)}}); }
    using Map = std::unordered_map<std::string, std::string>;

    QTemporaryDir m_root;
    Environment m_home{"HOME", m_root.filePath("nobody").toUtf8()};
    Environment m_user{"XDG_DATA_HOME", m_root.filePath("user").toUtf8()};
    Environment m_system{"XDG_DATA_DIRS", (m_root.filePath("one") + ':' + m_root.filePath("two")).toUtf8()};
    Environment m_locale{"LC_ALL", "C.UTF-8"};
};
} // namespace

TEST_F(FontCatalogue, FindsFontsInAllSubfolders) {
    Put("user/fonts/deep/er/a.ttf", Named("A"));
    Put("one/fonts/UPPER.TTF", Named("Upper"));
    Put("two/fonts/truetype/c.ttc", Collection({Named("C0"), Named("C1"), Font({}), Named("C3")}));
    Put("nobody/.fonts/old.tt", Named("Old"));
    Put("one/fonts/text.ttx", "<xml/>");
    Put("one/fonts/font.ttx", Named("Really a font"));
    Put("one/fonts/damaged.ttf", Named("Damaged").left(40));
    Put("one/fonts/other.otf", Named("Other"));
    Put("one/fonts/bad.ttc", Collection({Font({}), Named("Second")})); // the first face has no name
    QDir().mkpath(m_root.filePath("one/fonts/folder.ttf"));
    LoadFontCatalogue();
    EXPECT_EQ(g_fontFileToFace, (Map{{"a.ttf", "A"},
                                     {"UPPER.TTF", "Upper"},
                                     {"c.ttc", "C0"},
                                     {"c.ttc|1", "C1"},
                                     {"c.ttc|3", "C3"},
                                     {"old.tt", "Old"},
                                     {"font.ttx", "Really a font"}}));
    EXPECT_STREQ(GetFontFileName("C3"), "c.ttc|3");
    EXPECT_STREQ(GetFontFileName("Upper"), "UPPER.TTF");
}

TEST_F(FontCatalogue, OfFilesOfOneNameListsTheOneThatIsUsed) {
    Put("one/fonts/x.ttf", Named("System"));
    Put("user/fonts/X.ttf", Named("User"));
    LoadFontCatalogue();
    EXPECT_EQ(g_fontFileToFace, (Map{{"X.ttf", "User"}}));
}

TEST_F(FontCatalogue, OfFacesOfOneNameTheLastIsMeant) {
    Put("one/fonts/a.ttf", Named("Same"));
    Put("two/fonts/b.ttf", Named("Same"));
    LoadFontCatalogue();
    EXPECT_EQ(g_fontFileToFace, (Map{{"a.ttf", "Same"}, {"b.ttf", "Same"}}));
    EXPECT_EQ(g_fontFaceToFile, (Map{{"Same", "b.ttf"}}));
}

TEST_F(FontCatalogue, NamesFiles) {
    Put("user/fonts/a.ttf", Named("A"));
    EXPECT_STREQ(GetFontFileName("A"), "a.ttf"); // loads by itself
    EXPECT_TRUE(g_fontCatalogueLoaded);
    EXPECT_STREQ(GetFontFileName("(Default)"), "gulim.ttc");
    EXPECT_EQ(g_fontFaceToFile.size(), 1U);
    EXPECT_STREQ(GetFontFileName("Unknown"), "");
    EXPECT_STREQ(GetFontFileName("Unknown"), "");
    EXPECT_EQ(g_fontFaceToFile.size(), 2U); // the question is remembered
}

TEST_F(FontCatalogue, TakesNotMillionsOfFacesFromAFileThatSaysSo) {
    Put("one/fonts/many.ttc", Collection(std::vector<QByteArray>(300, Named("Again"))));
    LoadFontCatalogue();
    EXPECT_EQ(g_fontFileToFace.size(), 256u);
}
