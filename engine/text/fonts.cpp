#include "engine/text/fonts.h"

#include "engine/paint/file_bytes.h"
#include "engine/text/application.h"
#include "engine/text/font_files.h"
#include "engine/text/sfnt_face.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QLocale>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <list>
#include <mutex>
#include <optional>
#include <vector>

namespace chartdraw {

namespace {

constexpr std::array<std::string_view, 4> kStyleWords = {"normal", "bold", "italic", "boldItalic"};

/// How a face is asked for.
struct Face {
    QString family; ///< empty: the system's general sans
    bool bold = false;
    bool italic = false;
};

/// The place of a style word in a FontSet, -1 for any other name.
int styleOf(std::string_view name) {
    if (name.empty())
        return 0;
    const auto found = std::ranges::find(kStyleWords, name);
    return found == kStyleWords.end() ? -1 : static_cast<int>(found - kStyleWords.begin());
}

/// The style that a missing file most likely had, by the usual endings of file names.
int styleOfMissing(std::string_view file) {
    static constexpr std::pair<const char*, int> endings[] = {
        {"bolditalic", 3}, {"boldoblique", 3}, {"italic", 2}, {"oblique", 2},
        {"bold", 1},       {"bi", 3},          {"bd", 1},
    };
    QString stem = QString::fromUtf8(file.data(), std::ssize(file));
    stem.truncate(stem.lastIndexOf(u'.'));
    for (const auto& [ending, style] : endings)
        if (stem.endsWith(QLatin1String(ending), Qt::CaseInsensitive))
            return style;
    return 0;
}

/// Grows when a face is given back: fonts made before may name it.
std::atomic<int> s_facesGivenBack = 0;

/// All faces in use. One for the process; every call is guarded.
class FaceCache {
public:
    /// The face for a name that is a file, a path or a style word.
    Face find(std::string_view name) {
        const std::lock_guard lock(m_mutex);
        if (const int now = applicationCount(); m_application != now) {
            m_loaded.clear();
            m_application = now;
        }
        return load(name);
    }

private:
    // More than a page of charts uses, and little enough that naming file after file does not fill the
    // memory.
    static constexpr std::size_t kMaxFaces = 64;
    static constexpr qsizetype kMaxBytes = 256 * 1024 * 1024;

    /// A face of a file, whatever way its path was written. Without a family: no usable face.
    struct Loaded {
        QString path;
        int index;
        Face face;
        int id = -1; ///< the toolkit's
        qsizetype bytes = 0;
    };

    Face load(std::string_view name) {
        if (const int style = styleOf(name); style >= 0)
            return ownFace(style);
        const FontName parts = splitFontName(name);
        if (const auto face = loadFile(parts.file, parts.face))
            return *face;
        return ownFace(styleOfMissing(parts.file));
    }

    /// The library's own font of a style.
    Face ownFace(int style) {
        static constexpr std::array<std::array<std::string_view, 4>, 4> files = {{
            {"LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf", "LiberationSans-Italic.ttf",
             "LiberationSans-BoldItalic.ttf"},
            {"Arial.ttf", "Arialbd.ttf", "Ariali.ttf", "Arialbi.ttf"},
            {"DejaVuSans.ttf", "DejaVuSans-Bold.ttf", "DejaVuSans-Oblique.ttf", "DejaVuSans-BoldOblique.ttf"},
            {"NotoSans-Regular.ttf", "NotoSans-Bold.ttf", "NotoSans-Italic.ttf", "NotoSans-BoldItalic.ttf"},
        }};
        for (const auto& family : files)
            if (const auto face = loadFile(family[static_cast<std::size_t>(style)], 0))
                return *face;
        return {.family = {}, .bold = style % 2 == 1, .italic = style >= 2};
    }

    std::optional<Face> loadFile(std::string_view name, int index) {
        const QString path = findFontFile(name);
        if (path.isEmpty())
            return std::nullopt;
        const QString canonical = QFileInfo(path).canonicalFilePath();
        const auto found = std::ranges::find_if(
            m_loaded, [&](const Loaded& l) { return l.index == index && l.path == canonical; });
        if (found != m_loaded.end())
            m_loaded.splice(m_loaded.begin(), m_loaded, found);
        else
            registerFace(canonical, index);
        const Face& face = m_loaded.front().face;
        return face.family.isEmpty() ? std::nullopt : std::optional(face);
    }

    void registerFace(const QString& path, int index) {
        Loaded loaded{.path = path, .index = index, .face = {}};
        const QString family = QStringLiteral("chartdraw-%1").arg(++m_lastFamily);
        const auto face = extractFace(fileBytes(QFileInfo(path), kMaxFontFile), index, family.toStdString());
        if (face)
            loaded.id = QFontDatabase::addApplicationFontFromData(face->data);
        if (loaded.id >= 0) {
            loaded.face = {.family = family, .bold = face->bold, .italic = face->italic};
            loaded.bytes = face->data.size();
        }
        m_loaded.push_front(std::move(loaded));
        giveBackTheOldest();
    }

    void giveBackTheOldest() {
        qsizetype bytes = 0;
        for (const Loaded& loaded : m_loaded)
            bytes += loaded.bytes;
        while (m_loaded.size() > 1 && (m_loaded.size() > kMaxFaces || bytes > kMaxBytes)) {
            const Loaded& oldest = m_loaded.back();
            bytes -= oldest.bytes;
            if (oldest.id >= 0) {
                QFontDatabase::removeApplicationFont(oldest.id);
                s_facesGivenBack.fetch_add(1);
            }
            m_loaded.pop_back();
        }
    }

    std::mutex m_mutex;
    std::list<Loaded> m_loaded; ///< the last used first
    int m_lastFamily = 0;
    int m_application = 0; ///< Under which the faces were loaded.
};

/// The families that complete a face, in order. What none of them has, the system's own fallback finds.
const QStringList& fallbackFamilies() {
    static const QStringList families = [] {
        // The same ideograph is written differently in each of these languages.
        const QLocale locale = QLocale::system();
        const QString region = locale.language() == QLocale::Korean                   ? QStringLiteral("KR")
                               : locale.language() != QLocale::Chinese                ? QStringLiteral("JP")
                               : locale.script() == QLocale::TraditionalChineseScript ? QStringLiteral("TC")
                                                                                      : QStringLiteral("SC");
        QStringList list = {"Noto Sans",   "Noto Sans Hebrew", "Noto Sans Arabic", "Noto Sans CJK " + region,
                            "DejaVu Sans", "Symbola"};
        list.removeIf([](const QString& family) { return !QFontDatabase::hasFamily(family); });
        return list;
    }();
    return families;
}

QFont makeFont(const Face& face, double points, double widthPoints, bool smooth) {
    QFont result;
    if (face.family.isEmpty())
        result.setFamilies(QFontDatabase::systemFont(QFontDatabase::GeneralFont).families() +
                           fallbackFamilies());
    else
        result.setFamilies(QStringList(face.family) + fallbackFamilies());
    result.setBold(face.bold);
    result.setItalic(face.italic);
    // Whole pixels: small text stays sharp, and no screen's resolution has a say.
    result.setPixelSize(std::max(1, qRound(points * kDotsPerInch / 72)));
    if (widthPoints > 0)
        result.setStretch(std::clamp(static_cast<int>(std::lround(100 * widthPoints / points)), 1, 4000));
    result.setHintingPreference(QFont::PreferVerticalHinting);
    result.setStyleStrategy(QFont::StyleStrategy((smooth ? QFont::PreferAntialias : QFont::NoAntialias) |
                                                 QFont::NoSubpixelAntialias));
    return result;
}

/// The fonts that this thread used last: a chart asks for the same few again and again.
struct RecentFont {
    std::string name;
    double points = 0, widthPoints = 0;
    int generation = 0;
    bool smooth = true;
    QFont font;
};

} // namespace

std::string FontSet::resolve(std::string_view name) const {
    const int style = styleOf(name);
    if (style < 0)
        return std::string(name);
    const auto place = static_cast<std::size_t>(style);
    return files[place].empty() ? std::string(kStyleWords[place]) : files[place];
}

double limitedFontSize(double points) {
    return points > 0 ? std::min(points, kMaxFontSize) : kDefaultFontSize;
}

int fontGeneration() {
    return applicationCount() + s_facesGivenBack.load(); // both only grow
}

QFont font(const FontSet& set, std::string_view name, double points, double widthPoints) {
    if (!textAvailable())
        return {};
    points = limitedFontSize(points);
    if (!(widthPoints > 0) || widthPoints == points)
        widthPoints = 0;
    std::string resolved = set.resolve(name);
    constexpr std::size_t kRecent = 16;
    thread_local std::vector<RecentFont> recent;
    const int generation = fontGeneration();
    const auto found = std::ranges::find_if(recent, [&](const RecentFont& r) {
        return r.points == points && r.widthPoints == widthPoints && r.generation == generation &&
               r.smooth == set.smooth && r.name == resolved;
    });
    if (found != recent.end())
        return found->font;
    static FaceCache cache;
    const QFont made = makeFont(cache.find(resolved), points, widthPoints, set.smooth);
    if (recent.size() >= kRecent)
        recent.erase(recent.begin());
    recent.push_back({std::move(resolved), points, widthPoints, generation, set.smooth, made});
    return made;
}

} // namespace chartdraw
