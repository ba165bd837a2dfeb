// Names of real fonts, against those that the font configuration's own reader reports.

#include "editors/font/font_file.h"
#include "editors/font/font_folders.h"
#include "tests/editors/font/font_builder.h"

#include <QMap>
#include <QProcess>
#include <QTemporaryDir>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

QString FontPath(const QString& name) {
    for (const QString& path : FindFontFiles())
        if (path.endsWith(u'/' + name))
            return path;
    ADD_FAILURE() << name.toStdString() << " is not installed";
    return {};
}

/// Full names by language, as fc-scan tells them.
QMap<QString, QString> ReportedNames(const QString& path, int face) {
    QProcess scan;
    scan.start("fc-scan", {"--format", "%{index}\t%{fullname}\t%{fullnamelang}\n", path});
    scan.waitForFinished();
    QMap<QString, QString> names;
    for (const QString& line :
         QString::fromUtf8(scan.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList fields = line.split(u'\t');
        const QStringList texts = fields[1].split(u',');
        const QStringList languages = fields[2].split(u',');
        for (qsizetype i = 0; i < std::min(texts.size(), languages.size()) && fields[0].toInt() == face; ++i)
            names.insert(languages[i], texts[i]);
    }
    EXPECT_FALSE(names.isEmpty()) << path.toStdString();
    return names;
}

QString NameOf(const QString& path, int face, const char* locale, int* faces = nullptr) {
    const Environment environment("LC_ALL", locale);
    char name[512];
    const int count = ReadFaceName(path.toUtf8().constData(), name, sizeof name, face);
    if (faces != nullptr)
        *faces = count;
    return count > 0 ? QString::fromUtf8(name) : QString();
}

void ExpectReportedNames(const QString& path, int face) {
    const QMap<QString, QString> names = ReportedNames(path, face);
    const QString english = names.value("en");
    EXPECT_EQ(NameOf(path, face, "ko_KR.UTF-8"), names.value("ko", english)) << path.toStdString();
    EXPECT_EQ(NameOf(path, face, "ja_JP.UTF-8"), names.value("ja", english)) << path.toStdString();
    EXPECT_EQ(NameOf(path, face, "fr_FR.UTF-8"), english) << path.toStdString();
}

} // namespace

TEST(RealFonts, HaveTheReportedNames) {
    int checked = 0;
    int native = 0;
    for (const QString& path : FindFontFiles()) {
        const bool known = path.contains("/nanum/") || path.contains("/vlgothic/") ||
                           path.contains("/dejavu/") || path.contains("/liberation/");
        if (known) {
            ExpectReportedNames(path, 0);
            ++checked;
            native += NameOf(path, 0, "ko_KR.UTF-8") != NameOf(path, 0, "C") ? 1 : 0;
        }
    }
    EXPECT_GE(checked, 20);
    EXPECT_GE(native, 8) << "the Korean family has Korean names";
    EXPECT_EQ(NameOf(FontPath("NanumGothic.ttf"), 0, "ko_KR.UTF-8"),
              QStringLiteral("\uB098\uB214\uACE0\uB515"));
    EXPECT_EQ(NameOf(FontPath("VL-PGothic-Regular.ttf"), 0, "ja_JP.UTF-8"), "VL PGothic Regular");
}

TEST(RealFonts, MakeACollectionOfSeveralFaces) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("several.ttc");
    std::vector<QByteArray> fonts;
    for (const char* name : {"NanumGothic.ttf", "DejaVuSans.ttf", "VL-Gothic-Regular.ttf"})
        fonts.push_back(ReadFile(FontPath(name)));
    WriteFile(path, Collection(fonts));
    for (int face = 0; face < 3; ++face) {
        ExpectReportedNames(path, face);
        int faces = 0;
        NameOf(path, face, "C", &faces);
        EXPECT_EQ(faces, 3);
    }
    EXPECT_EQ(NameOf(path, 1, "C"), "DejaVu Sans");
}

TEST(RealFonts, OutlinesOfAnotherKindAreRefused) {
    EXPECT_EQ(NameOf(FontPath("NotoSansCJK-Regular.ttc"), 0, "ja_JP.UTF-8"), QString());
    EXPECT_EQ(NameOf(FontPath("NotoSerifCJK-Bold.ttc"), 3, "ko_KR.UTF-8"), QString());
}

// Damaged copies of what matters in real files: their directories and name tables, without the rest.
TEST(RealFonts, StayHarmlessHoweverTheyAreDamaged) {
    const auto essence = [](const char* name) {
        const QByteArray whole = ReadFile(FontPath(name));
        const auto number = [&](qsizetype at) {
            return QByteArrayView(whole).sliced(at, 4).toByteArray().toHex().toLongLong(nullptr, 16);
        };
        for (qsizetype at = 12; at + 16 < whole.size(); at += 16)
            if (whole.mid(at, 4) == "name")
                return FontAt(0, whole.mid(number(at + 8), number(at + 12)));
        return QByteArray();
    };
    const QByteArray single = essence("NanumGothic.ttf");
    const QByteArray collection =
        Collection({essence("VL-Gothic-Regular.ttf"), single, essence("DejaVuSans.ttf")});
    const QTemporaryDir folder;
    const QString path = folder.filePath("damaged.ttc");
    const Environment locale("LC_ALL", "ko_KR.UTF-8");
    WriteFile(path, collection);
    EXPECT_EQ(NameOf(path, 1, "ko_KR"), QStringLiteral("\uB098\uB214\uACE0\uB515"));

    std::mt19937 random(11);
    const auto below = [&](qsizetype bound) {
        return static_cast<qsizetype>(random() % static_cast<unsigned long>(bound));
    };
    int named = 0;
    for (int i = 0; i < 10000; ++i) {
        QByteArray damaged = i % 2 == 0 ? single : collection;
        // Headers and directories are hit more often than what stands behind them.
        for (qsizetype hits = 1 + below(6); hits > 0; --hits) {
            const qsizetype at = below(below(2) == 0 ? 120 : damaged.size());
            damaged[at] = static_cast<char>(below(3) == 0 ? 0xFF : below(256));
        }
        if (below(4) == 0)
            damaged.truncate(below(damaged.size()));
        WriteFile(path, damaged);
        char name[64];
        const int faces =
            ReadFaceName(path.toUtf8().constData(), name, sizeof name, static_cast<int>(below(4)) - 1);
        ASSERT_GE(faces, 0);
        ASSERT_LT(std::strlen(name), sizeof name);
        named += faces > 0 ? 1 : 0;
    }
    // Some survive, some do not: the damage is neither nothing nor all.
    EXPECT_GT(named, 500);
    EXPECT_LT(named, 9500);
}
