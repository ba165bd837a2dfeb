#include "engine/text/font_files.h"
#include "engine/text/fonts.h"
#include "tests/engine/text/ink.h"
#include <QFile>
#include <QFileInfo>
#include <QFontDatabase>
#include <QTemporaryDir>

namespace chartdraw {
namespace {
// A screen of another resolution must not change a picture, so the tests run with one.
const bool s_otherResolution = qputenv("QT_FONT_DPI", "144");

TextLook lookOf(const std::string& font, double size = 24) {
    TextLook look;
    look.font = font;
    look.size = size;
    return look;
}

int widthOf(const TextLook& look, std::string_view text, const FontSet& fonts = {}) {
    return TextBlock(look, text, fonts).boxSize().width();
}
} // namespace

TEST(Fonts, FileNames) {
    EXPECT_EQS((splitFontName("/x/a.ttc|10").file, "/x/a.ttc"), (splitFontName("|3").file, ""));
    for (const auto& [name, face] : {std::pair("a.ttc|2", 2), {"a.ttc|-1", -1}, {"|3", 3}, {"/x/a.ttc|10", 10}})
        EXPECT_EQ(splitFontName(name).face, face) << name;
    for (const char* whole : {"a.ttf", "a.ttc|", "a|b.ttf", "", "a|99999999999"}) {
        EXPECT_EQ(splitFontName(whole).file, whole);
        EXPECT_EQ(splitFontName(whole).face, 0) << whole;
    }
    const QString path = findFontFile("LiberationMono-Bold.ttf");
    EXPECT_EQS((QFileInfo(path).isFile(), true), (findFontFile("liberationmono-BOLD.TTF"), path),
               (findFontFile(path.toStdString()), path), (findFontFile(path.toStdString() + "x"), QString()),
               (findFontFile("/dev/zero"), QString()), (findFontFile("no such file.ttf"), QString()));
}

TEST(Fonts, StyleWords) {
    const FontSet own, set{{"n.ttf", "b.ttf", "", "bi.ttf"}};
    const std::tuple<const FontSet&, const char*, const char*> cases[] = {
        {own, "", "normal"},       {own, "boldItalic", "boldItalic"}, {own, "a.ttf", "a.ttf"},
        {set, "", "n.ttf"},        {set, "normal", "n.ttf"},          {set, "bold", "b.ttf"},
        {set, "italic", "italic"}, {set, "boldItalic", "bi.ttf"}};
    for (const auto& [fonts, word, name] : cases) EXPECT_EQ(fonts.resolve(word), name) << word;
    // A set whose entries are style words means the library's own.
    EXPECT_EQ(widthOf(lookOf("normal"), "iiiii", {{"bold", "normal", "", ""}}), widthOf(lookOf("bold"), "iiiii"));
}

TEST(Fonts, MadeUpNamesAndSpellingsTakeNothingAway) {
    const auto faces = [] { return QFontDatabase::families().filter(QStringLiteral("chartdraw-")).size(); };
    const int bold = widthOf(lookOf("bold"), "Hamburg");
    for (int i = 0; i < 1000; ++i) widthOf(lookOf("made-up-" + std::to_string(i)), "a");
    EXPECT_EQ(widthOf(lookOf("bold"), "Hamburg"), bold);

    const std::string path = findFontFile("DejaVuSans.ttf").toStdString();
    const int plain = widthOf(lookOf(path), "Hamburg");
    const auto before = faces();
    const std::string folder = path.substr(0, path.rfind('/'));
    for (std::string way = folder; way.size() < folder.size() + 400; way += "/.")
        EXPECT_EQ(widthOf(lookOf(way + path.substr(folder.size())), "Hamburg"), plain);
    EXPECT_EQ(faces(), before);
}

TEST(Fonts, TheLongestUnusedFacesGo) {
    const QTemporaryDir folder;
    const QString face = findFontFile("LiberationMono-Regular.ttf");
    const int mono = widthOf(lookOf("LiberationMono-Regular.ttf"), "iiiiii");
    for (int i = 0; i < 100; ++i) {
        const QString copy = folder.filePath(QString::number(i) + ".ttf");
        ASSERT_TRUE(QFile::copy(face, copy));
        EXPECT_EQ(widthOf(lookOf(copy.toStdString()), "iiiiii"), mono) << i;
    }
    EXPECT_LE(QFontDatabase::families().filter(QStringLiteral("chartdraw-")).size(), 64);
    EXPECT_EQ(widthOf(lookOf("LiberationMono-Regular.ttf"), "iiiiii"), mono);
}

TEST(Fonts, ATextNamesNoFilesOutsideTheFontFolders) {
    const QTemporaryDir folder;
    const QString copy = folder.filePath("own.ttf");
    ASSERT_TRUE(QFile::copy(findFontFile("LiberationMono-Regular.ttf"), copy));
    const TextLook look = lookOf("normal");
    EXPECT_EQ(widthOf(look, "<*font=" + copy.toStdString() + "*>iiiiii"), widthOf(look, "iiiiii"));
    EXPECT_GT(widthOf(look, "<*font=LiberationMono-Regular.ttf*>iiiiii"), widthOf(look, "iiiiii"));
    EXPECT_GT(widthOf(lookOf(copy.toStdString()), "iiiiii"), widthOf(look, "iiiiii"));
}

// Widths of letters in thousandths of the size, as published for the metrics that these faces share with the
// classic sans, serif and typewriter faces.
TEST(Fonts, TheFileNamedIsTheFaceDrawn) {
    const std::string serif = findFontFile("LiberationSerif-Regular.ttf").toStdString();
    // Missing files, missing faces of a file and files that are no font give the sans face, in the style that the name
    // tells.
    const std::tuple<char, int, std::vector<std::string>> cases[] = {
        {'i',
         222,
         {"", "italic", "missing.ttf", "LiberationMono-Regular.ttf|1", "NotoSansCJK-Regular.ttc|10",
          "NotoSansCJK-Regular.ttc|-1", "/etc/passwd", "/", "\xff\xfe"}},
        {'i', 278, {"bold", "boldItalic", "liberationsans-bold.TTF", serif, "missingbd.ttf", "timesbi.ttf"}},
        {'i', 500, {"NotoSansCJK-Regular.ttc|5"}},
        {'i', 600, {"LiberationMono-Regular.ttf"}},
        {'x', 500, {"normal", "LiberationSerif-Bold.ttf", "gulim.ttc"}},
        {'x', 556, {"bold"}},
        {'W', 500, {"NotoSansCJK-Bold.ttc|7"}},
        {'W', 600, {"LiberationMono-Bold.ttf|0"}},
        {'W', 944, {"LiberationSans-Regular.ttf"}}};
    for (const auto& [letter, published, fonts] : cases) {
        for (const std::string& font : fonts) {
            // 72 points are 96 pixels. The difference of two texts leaves out what the last letter leans over.
            const TextLook look = lookOf(font, 72);
            const int width = widthOf(look, std::string(20, letter)) - widthOf(look, std::string(10, letter));
            EXPECT_NEAR(width, 10 * published * 0.096, 1.5) << font << letter;
        }
    }
}

TEST(Fonts, ABoldFaceIsNotMadeBolder) {
    // Ten bars, each a tenth of the size high and as wide as the letter's stem: a made-up bold would be wider.
    const double regular = darkness(drawn(lookOf("normal", 36), "lllllll"));
    const double bold = darkness(drawn(lookOf("bold", 36), "lllllll"));
    // Stems of 180 and 281 of 2048 units, as the outlines of the two files have them.
    EXPECT_NEAR(bold / regular, 281.0 / 180, 0.06);
}

TEST(Fonts, ADamagedFileGivesTheSansFace) {
    QTemporaryDir folder;
    QFile font(findFontFile("LiberationMono-Regular.ttf"));
    ASSERT_TRUE(font.open(QIODevice::ReadOnly));
    const QByteArray whole = font.readAll();
    const auto write = [&](const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return folder.filePath(name).toStdString();
    };
    const int mono = widthOf(lookOf("LiberationMono-Regular.ttf"), "iiiiiiiiii");
    const int sans = widthOf(lookOf(""), "iiiiiiiiii");
    EXPECT_EQ(widthOf(lookOf(write("whole.ttf", whole)), "iiiiiiiiii"), mono);
    EXPECT_EQ(widthOf(lookOf(write("half.ttf", whole.first(whole.size() / 2))), "iiiiiiiiii"), sans);
    EXPECT_EQ(widthOf(lookOf(write("empty.ttf", {})), "iiiiiiiiii"), sans);
    QByteArray noOutlines = whole;
    noOutlines.replace("glyf", "gone").replace("loca", "lost");
    EXPECT_GT(widthOf(lookOf(write("outlines.ttf", noOutlines)), "iiiiiiiiii"), 0);
}

TEST(Fonts, MissingGlyphsComeFromAnInstalledFace) {
    // U+0378 is assigned to no character: it shows what a missing glyph looks like.
    const QImage missing = drawn(lookOf(""), "\u0378");
    const char* pairs[][2] = {
        {"\u0434", "\u0436"}, {"\u05d0", "\u05d1"},         {"\u0628", "\u0633"}, {"\ud55c", "\uad6d"},
        {"\u3042", "\u304d"}, {"\u6f22", "\u5b57"},         {"\u0e01", "\u0e02"}, {"\u0915", "\u0916"},
        {"\u2264", "\u2211"}, {"\U0001f600", "\U0001f389"}, {"\u2600", "\u2614"},
    };
    for (const auto& pair : pairs) {
        for (const char* font : {"", "LiberationMono-Regular.ttf", "gulim.ttc", "bold"}) {
            const QImage first = drawn(lookOf(font), pair[0]), second = drawn(lookOf(font), pair[1]);
            EXPECT_FALSE(ink(first).isEmpty()) << pair[0] << font;
            EXPECT_NE(first, missing) << pair[0] << font;
            EXPECT_NE(second, missing) << pair[1] << font;
            EXPECT_NE(first, second) << pair[0] << font;
        }
    }
}

TEST(Fonts, EmojiAreOutlinesInTheColourOfTheText) {
    TextLook look = lookOf("");
    look.colour = 0xff0000;
    const QImage image = drawn(look, "\U0001f600\U0001f389");
    ASSERT_FALSE(ink(image).isEmpty());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            ASSERT_EQ(qRed(pixel), 255) << x << ',' << y;
            ASSERT_EQ(qGreen(pixel), qBlue(pixel)) << x << ',' << y;
        }
    }
}

TEST(Fonts, RealShaping) {
    // Lam and alef join to one glyph, so they take less room than apart.
    EXPECT_LT(widthOf(lookOf(""), "\u0644\u0627"), widthOf(lookOf(""), "\u0644\u200c\u0627"));
    // Right to left: the first letter of the text, a bet with a wide foot, stands at the right end.
    const QImage word = drawn(lookOf(""), "\u05d1\u05d9"); // bet, yod
    const QRect bounds = ink(word);
    const QImage right = word.copy(bounds.center().x(), 0, 100, word.height());
    EXPECT_GT(darkness(right), 0.6 * darkness(word));
    // A combining accent takes no room.
    EXPECT_EQ(widthOf(lookOf(""), "e\u0301e\u0301"), widthOf(lookOf(""), "\u00e9\u00e9"));
}

TEST(Fonts, Sizes) {
    int last = 0;
    for (const double size : {4.0, 6.0, 7.5, 8.25, 9.0, 10.0, 10.5, 12.0, 24.0, 100.0, 1000.0}) {
        const int width = widthOf(lookOf("", size), "Sphinx of black quartz");
        EXPECT_GT(width, last) << size;
        last = width;
    }
    const int usual = widthOf(lookOf("", 8), "Text");
    for (const double size : {0.0, -1.0, -1e308, std::nan("")})
        EXPECT_EQ(widthOf(lookOf("", size), "Text"), usual) << size;
    EXPECT_EQ(widthOf(lookOf("", INFINITY), "i"), widthOf(lookOf("", kMaxFontSize), "i"));
    // 72 points are 96 pixels: ascent and descent of the face are 0.905 and 0.212 of it.
    EXPECT_NEAR(TextBlock(lookOf("", 72), "x", {}).boxSize().height(), 0.905 * 96 + 0.212 * 96, 2);

    TextLook wide = lookOf("", 12);
    wide.widthSize = 24;
    EXPECT_NEAR(widthOf(wide, "Wide text"), widthOf(lookOf("", 24), "Wide text"), 2);
    EXPECT_EQ(TextBlock(wide, "x", {}).boxSize().height(), TextBlock(lookOf("", 12), "x", {}).boxSize().height());
    wide.widthSize = 1e300;
    EXPECT_GT(widthOf(wide, "W"), 0);
}
} // namespace chartdraw
