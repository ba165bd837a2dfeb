// The search of 500 font files, TrueType and collections, in one folder and its subfolders.

#include "editors/font/font_catalogue.h"
#include "platform/fonts/font_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {

constexpr int kFiles = 500;

/// Links to the fonts of this computer, under other names, as often as it takes.
bool LinkFonts(const QString& folder) {
    static const QStringList real = platform::FindFontFiles({"*.tt*"}); // before the folders are other ones
    for (int i = 0; i < kFiles && !real.isEmpty(); ++i) {
        const QString& font = real[i % real.size()];
        const QString place = folder + QStringLiteral("/fonts/%1").arg(i % 20);
        QDir().mkpath(place);
        QFile::link(font, place + QStringLiteral("/%1%2").arg(i).arg(font.mid(font.lastIndexOf(u'.'))));
    }
    return !real.isEmpty();
}

void scanFonts(benchmark::State& state) {
    const QTemporaryDir folder;
    if (!LinkFonts(folder.path())) {
        state.SkipWithError("no fonts are installed");
        return;
    }
    qputenv("XDG_DATA_HOME", folder.path().toUtf8());
    qputenv("XDG_DATA_DIRS", "/nowhere");
    for (auto _ : state) {
        g_fontCatalogueLoaded = false;
        LoadFontCatalogue();
    }
    state.counters["faces"] = static_cast<double>(g_fontFileToFace.size());
}
BENCHMARK(scanFonts)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
