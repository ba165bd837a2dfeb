// chart-examples SOURCE PAGE [PICTURES]: writes the page of examples, docs/gallery.md, from their source,
// examples.c; and their pictures into a folder, which the page knows as images/gallery.

#include "tools/examples/examples.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QRegularExpression>
#include <chartdraw/surface.h>
#include <cstdio>

namespace {

/// The page: comments become headings and text, functions blocks of code, with the picture above.
QByteArray page(const QString& source) {
    static const QRegularExpression part(
        R"(/\* (#+) (.*?)\*/\n(static BaseChart\* (\w+)\(void\) (\{.*?\n\})\n)?)",
        QRegularExpression::DotMatchesEverythingOption);
    const qsizetype first = source.indexOf("static const"), last = source.indexOf("\n/* #");
    QString text =
        "# Gallery\n\nWhat the drawing library draws, and the code of each picture. It is C, and the same "
        "calls in every other\nlanguage. Written by `chart-examples` from `tools/examples/examples.c`. The "
        "examples share\n\n```c\n" +
        source.mid(first, last - first) + "```\n";
    for (auto each = part.globalMatch(source); each.hasNext();) {
        const QRegularExpressionMatch match = each.next();
        QString words = match.captured(2).trimmed();
        words.replace(QRegularExpression("\n \\* ?"), "\n");
        const qsizetype line = words.indexOf('\n');
        text += "\n#" + match.captured(1) + ' ' + words.left(line) + '\n';
        if (line > 0)
            text += "\n" + words.mid(line + 1) + "\n";
        const QString name = match.captured(4);
        if (name.isEmpty())
            continue;
        QString code = match.captured(5).mid(2);
        code.chop(2);
        code.replace(QRegularExpression("^    ", QRegularExpression::MultilineOption), "");
        text += "\n![](images/gallery/" + name + ".png)\n\n```c\n" + code + "\n```\n";
    }
    return text.toUtf8();
}

bool picture(const Example& example, const QDir& folder) {
    BaseChart* chart = example.make();
    const char* bytes = nullptr;
    int length = 0;
    CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length);
    const QImage image = QImage::fromData(reinterpret_cast<const uchar*>(bytes), length, "BMP");
    CBaseChart_destroy(chart);
    return image.save(folder.filePath(QString("%1.png").arg(example.name)), "PNG", 0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: chart-examples SOURCE PAGE [PICTURES]\n");
        return 2;
    }
#ifndef _WIN32 // whose own platform knows the fonts
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    const QGuiApplication application(argc, argv);
    QFile source(QString::fromLocal8Bit(argv[1])), target(QString::fromLocal8Bit(argv[2]));
    if (!source.open(QFile::ReadOnly) || !target.open(QFile::WriteOnly))
        return 1;
    target.write(page(QString::fromUtf8(source.readAll())));
    bool good = true;
    if (argc > 3) {
        const QDir folder(QString::fromLocal8Bit(argv[3]));
        good = folder.mkpath(".");
        for (int i = 0; i < exampleCount; ++i)
            good = picture(examples[i], folder) && good;
    }
    return good ? 0 : 1;
}
