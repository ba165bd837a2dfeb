// Names of real fonts, against those that the font configuration's own reader reports.

#include "editors/font/font_file.h"
#include "platform/fonts/font_files.h"
#include "tests/editors/font/font_builder.h"

#include <QMap>
#include <QProcess>
#include <gtest/gtest.h>

namespace {

QString FontPath(const QString& name) {
    for (const QString& path : platform::FindFontFiles({"*.tt*"}))
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

QString NameOf(const QString& path, int face, const char* locale) {
    const Environment environment("LC_ALL", locale);
    char name[512];
    const int count = ReadFaceName(path.toUtf8().constData(), name, sizeof name, face);
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
    for (const QString& path : platform::FindFontFiles({"*.tt*"})) {
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
