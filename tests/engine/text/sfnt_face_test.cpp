#include "engine/text/application.h"
#include "engine/text/font_files.h"
#include "engine/text/sfnt_face.h"
#include "tests/expect.h"
#include <QFile>
#include <QFontDatabase>
#include <QPainterPath>
#include <QRawFont>
#include <random>

namespace chartdraw {
namespace {
QByteArray bytesOf(const char* fileName) {
    QFile file(findFontFile(fileName));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << fileName << " is not installed";
    return file.readAll();
}

/// Widths of the letters in thousandths of the size.
std::vector<int> widths(const QByteArray& font, const QString& text) {
    const QRawFont raw(font, 1000, QFont::PreferNoHinting);
    std::vector<int> result;
    for (const QPointF advance : raw.advancesForGlyphIndexes(raw.glyphIndexesForString(text)))
        result.push_back(qRound(advance.x()));
    return result;
}
} // namespace

TEST(SfntFace, TakesTheFaceMeant) {
    ensureApplication();
    const QByteArray collection = bytesOf("NotoSansCJK-Regular.ttc");
    // Faces 0 to 4 are proportional, 5 to 9 have letters half an ideograph wide (the family's published design).
    for (int index = 0; index < 10; ++index) {
        const auto face = extractFace(collection, index, "face");
        ASSERT_TRUE(face) << index;
        EXPECT_FALSE(face->bold || face->italic);
        const std::vector<int> w = widths(face->data, QStringLiteral("iW\u76f4"));
        ASSERT_EQ(w.size(), 3U);
        EXPECT_EQ(w[2], 1000) << index;
        EXPECT_EQ(w[0] == 500 && w[1] == 500, index >= 5) << index;
    }
    // The same ideograph is another glyph in the Japanese and in the simplified Chinese face.
    const auto glyph = [&](int index) {
        const QRawFont raw(extractFace(collection, index, "face")->data, 20);
        return raw.glyphIndexesForString(QStringLiteral("\u76f4")).value(0);
    };
    EXPECT_NE(glyph(0), glyph(2));

    for (const int none : {10, -1}) EXPECT_FALSE(extractFace(collection, none, "face"));
    EXPECT_FALSE(extractFace(bytesOf("LiberationSans-Regular.ttf"), 1, "face"));
}

TEST(SfntFace, BearsTheGivenNameAndItsOwnStyle) {
    ensureApplication();
    const std::tuple<const char*, bool, bool> cases[] = {
        {"LiberationSans-Regular.ttf", false, false}, {"LiberationSans-Bold.ttf", true, false},
        {"LiberationSans-Italic.ttf", false, true},   {"LiberationSans-BoldItalic.ttf", true, true},
        {"NotoSansCJK-Bold.ttc", true, false},
    };
    for (const auto& [file, bold, italic] : cases) {
        const auto face = extractFace(bytesOf(file), 0, "private-name");
        ASSERT_TRUE(face) << file;
        EXPECT_EQ(face->bold, bold) << file;
        EXPECT_EQ(face->italic, italic) << file;
        const int id = QFontDatabase::addApplicationFontFromData(face->data);
        EXPECT_EQ(QFontDatabase::applicationFontFamilies(id), QStringList("private-name")) << file;
        QFontDatabase::removeApplicationFont(id);
    }
}

TEST(SfntFace, RefusesWhatIsNoFont) {
    const QByteArray font = bytesOf("LiberationSans-Regular.ttf");
    const auto refused = [](const QByteArray& bytes) { return !extractFace(bytes, 0, "x"); };
    EXPECT_EQS((refused(font), false), (refused({}), true), (refused("no font"), true));
    EXPECT_TRUE(refused(QByteArray("ttcf\0\1\0\0\0\0\0\1\0\0\0\x0c", 16))); // A directory inside the header.
    for (const qsizetype length : {4, 11, 12, 28, 300, 5000, 100'000})
        EXPECT_TRUE(refused(font.first(length))) << length;
    EXPECT_TRUE(refused(font + QByteArray(kMaxFontFile, '\0')));

    // A hundred tables that all claim the same 10 MB.
    QByteArray bomb = QByteArray("\0\1\0\0\0\x64\0\0\0\0\0\0", 12);
    for (int i = 0; i < 100; ++i)
        bomb += QByteArray(i < 1   ? "cmap"
                           : i < 2 ? "head"
                           : i < 3 ? "hhea"
                           : i < 4 ? "hmtx"
                                   : "maxp") +
                QByteArray("\0\0\0\0\0\0\x10\0\0\xa0\0\0", 12);
    EXPECT_TRUE(refused(bomb + QByteArray(11'000'000, '\1')));
}
} // namespace chartdraw
