#include "engine/text/fonts.h"

#include "engine/text/application.h"
#include "engine/text/font_files.h"
#include "engine/text/sfnt_face.h"

#include <QFile>
#include <QFontDatabase>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
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

/// All faces in use. One for the process; every call is guarded.
class FaceCache {
public:
    /// The face for a name that is a file, a path or a style word.
    Face find(std::string_view name) {
        const std::lock_guard lock(m_mutex);
        if (const int now = applicationCount(); m_application != now) {
            m_byName.clear();
            m_byFile.clear();
            m_application = now;
        }
        if (const auto found = m_byName.find(name); found != m_byName.end())
            return found->second;
        // What a name means is kept for good, a missing file too; made-up names without end are not.
        if (m_byName.size() >= kMaxNames)
            return ownFace(0);
        return m_byName.emplace(name, load(name)).first->second;
    }

private:
    static constexpr std::size_t kMaxNames = 512;

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
        const auto [entry, isNew] = m_byFile.try_emplace({path, index});
        if (isNew)
            entry->second = registerFace(path, index);
        return entry->second;
    }

    std::optional<Face> registerFace(const QString& path, int index) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFontFile)
            return std::nullopt;
        const QString family = QStringLiteral("chartdraw-%1").arg(++m_lastFamily);
        const auto face = extractFace(file.read(kMaxFontFile), index, family.toStdString());
        if (!face || QFontDatabase::addApplicationFontFromData(face->data) < 0)
            return std::nullopt;
        return Face{.family = family, .bold = face->bold, .italic = face->italic};
    }

    std::mutex m_mutex;
    std::map<std::string, Face, std::less<>> m_byName;
    std::map<std::pair<QString, int>, std::optional<Face>> m_byFile; ///< none: no usable face
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

QFont makeFont(const Face& face, double points, double widthPoints) {
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
    result.setStyleStrategy(QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    return result;
}

/// The fonts that this thread used last: a chart asks for the same few again and again.
struct RecentFont {
    std::string name;
    double points = 0, widthPoints = 0;
    int application = 0;
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

QFont font(const FontSet& set, std::string_view name, double points, double widthPoints) {
    if (!textAvailable())
        return {};
    points = limitedFontSize(points);
    if (!(widthPoints > 0) || widthPoints == points)
        widthPoints = 0;
    std::string resolved = set.resolve(name);
    constexpr std::size_t kRecent = 16;
    thread_local std::vector<RecentFont> recent;
    const int application = applicationCount();
    const auto found = std::ranges::find_if(recent, [&](const RecentFont& r) {
        return r.points == points && r.widthPoints == widthPoints && r.application == application &&
               r.name == resolved;
    });
    if (found != recent.end())
        return found->font;
    static FaceCache cache;
    const QFont made = makeFont(cache.find(resolved), points, widthPoints);
    if (recent.size() >= kRecent)
        recent.erase(recent.begin());
    recent.push_back({std::move(resolved), points, widthPoints, application, made});
    return made;
}

} // namespace chartdraw
