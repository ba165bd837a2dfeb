#include "engine/text/glyph_text.h"

#include "engine/text/application.h"
#include "engine/text/markup.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QRawFont>
#include <QTextBoundaryFinder>
#include <QTextLayout>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <string>
#include <unordered_map>
#include <utility>

namespace chartdraw {

namespace {

// More than any picture can show.
constexpr std::size_t kMaxBytes = 64 * 1024;
constexpr std::size_t kMaxLines = 4096;
constexpr int kMaxStacked = 4096;

constexpr double kScriptScale = 0.7;      ///< size of a superscript or subscript
constexpr double kSuperscriptRise = 0.38; ///< of the size of the full font, upwards
constexpr double kSubscriptDrop = 0.14;
constexpr double kColumnGap = 0.3; ///< between columns of stacked letters, of the size of the font

/// Text as a layout takes it: control characters and separators that would break lines or jump to tab stops
/// become spaces.
QString plainText(std::string_view utf8) {
    QString text = QString::fromUtf8(utf8.data(), std::ssize(utf8));
    for (QChar& c : text) {
        const auto category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph || c == QChar::ObjectReplacementCharacter)
            c = u' ';
    }
    return text;
}

std::string_view limited(std::string_view text) {
    if (text.size() <= kMaxBytes)
        return text;
    std::size_t end = kMaxBytes;
    while (end > kMaxBytes - 4 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end; // Not inside a character.
    return text.substr(0, end);
}

/// What a reader sees as one letter each. An empty text counts as one empty letter, which has a height.
QStringList letters(const QString& text) {
    QStringList result;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype from = 0;
    for (qsizetype to = finder.toNextBoundary(); to > from; to = finder.toNextBoundary()) {
        result.append(text.sliced(from, to - from));
        from = to;
    }
    return result.isEmpty() ? QStringList(QString()) : result;
}

/// A run with its font chosen.
struct StyledRun {
    QString text;
    QFont font;
    QFont fullFont; ///< The font that a superscript or subscript stands beside; else the same.
    double rise = 0;
    bool underline = false;
    Colour colour = kTextColour;
};

class Layouter {
public:
    Layouter(const TextLook& look, const FontSet& fonts, bool columns)
        : m_look(look), m_fonts(fonts), m_columns(columns) {}

    GlyphText lay(std::string_view text) {
        std::vector<MarkupLine> lines = parseMarkup(limited(text));
        if (lines.size() > kMaxLines)
            lines.resize(kMaxLines);
        for (const MarkupLine& line : lines) {
            std::vector<StyledRun> runs;
            for (const Run& run : line)
                runs.push_back(styled(run));
            if (runs.empty())
                runs.push_back(styled(Run()));
            if (m_columns)
                addColumn(runs);
            else
                addLine(runs);
        }
        alignLines();
        return std::move(m_result);
    }

private:
    /// The pieces from `firstPiece` on make up a line of this width, or a column of this height.
    struct PlacedLine {
        std::size_t firstPiece;
        int extent;
    };

    StyledRun styled(const Run& run) const {
        const RunStyle& style = run.style;
        const std::string_view name = style.font.empty() ? std::string_view(m_look.font) : style.font;
        const double points = limitedFontSize(style.size > 0 ? style.size : m_look.size);
        const double widthPoints = style.size > 0 ? 0 : m_look.widthSize;
        StyledRun result{.text = plainText(run.text),
                         .font = {},
                         .fullFont = chartdraw::font(m_fonts, name, points, widthPoints),
                         .underline = style.underline,
                         .colour = orDefault(style.colour, orDefault(m_look.colour, kTextColour))};
        result.font = result.fullFont;
        if (style.script != 0) {
            result.font = chartdraw::font(m_fonts, name, points * kScriptScale, widthPoints * kScriptScale);
            const double pixels = points * kDotsPerInch / 72;
            result.rise = std::round(pixels * (style.script > 0 ? kSuperscriptRise : -kSubscriptDrop));
        }
        return result;
    }

    void addLine(const std::vector<StyledRun>& runs) {
        QString text;
        QList<QTextLayout::FormatRange> formats;
        for (const StyledRun& run : runs) {
            if (runs.size() > 1) {
                QTextCharFormat format;
                format.setFont(run.font);
                formats.append({static_cast<int>(text.size()), static_cast<int>(run.text.size()), format});
            }
            text += run.text;
        }
        QTextLayout layout(text, runs.front().font);
        layout.setFormats(formats);
        layout.setCacheEnabled(true);
        QTextOption option(Qt::AlignLeft | Qt::AlignAbsolute);
        const bool wraps = m_look.wrapWidth > 0 && !m_look.vertical;
        option.setWrapMode(wraps ? QTextOption::WordWrap : QTextOption::NoWrap);
        if (!wraps)
            option.setFlags(QTextOption::IncludeTrailingSpaces);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine();
             line.isValid() && m_lines.size() + m_pending.size() < kMaxLines; line = layout.createLine()) {
            line.setLineWidth(wraps ? m_look.wrapWidth : 1e6);
            if (wraps)
                keepNumbers(line, layout.text());
            placeLine(line, runs);
        }
        layout.endLayout();
        for (std::size_t i = 0; i < m_pending.size(); ++i)
            takeGlyphs(layout.lineAt(static_cast<int>(i)), runs, m_pending[i]);
        m_pending.clear();
    }

    /// A line that would end at the point of a number ends before the number, or where it begins with it,
    /// behind it.
    static void keepNumbers(QTextLine& line, const QString& text) {
        const auto digit = [&](qsizetype at) { return at >= 0 && at < text.size() && text[at].isDigit(); };
        const auto part = [&](qsizetype at) {
            return digit(at) || (digit(at - 1) && digit(at + 1) && !text[at].isSpace());
        };
        const qsizetype start = line.textStart();
        qsizetype end = start + line.textLength();
        if (!part(end) || !part(end - 1))
            return;
        while (end > start && part(end - 1))
            --end;
        if (end == start)
            while (end < text.size() && !text[end].isSpace())
                ++end;
        line.setNumColumns(static_cast<int>(end - start));
    }

    /// Puts a line below the ones before it, its baseline on a whole pixel.
    void placeLine(QTextLine& line, const std::vector<StyledRun>& runs) {
        double ascent = line.ascent(), descent = line.descent();
        int start = 0;
        for (const StyledRun& run : runs) {
            const int from = std::exchange(start, start + static_cast<int>(run.text.size()));
            if (run.rise == 0 || start <= line.textStart() || from >= line.textStart() + line.textLength())
                continue;
            const QFontMetricsF full(run.fullFont), script(run.font);
            ascent = std::max({ascent, full.ascent(), script.ascent() + run.rise});
            descent = std::max({descent, full.descent(), script.descent() - run.rise});
        }
        const int baseline = m_result.size.height() + static_cast<int>(std::ceil(ascent));
        m_result.size.setHeight(baseline + static_cast<int>(std::ceil(descent)));
        line.setPosition(QPointF(0, baseline - line.ascent()));
        m_pending.push_back(baseline);
    }

    void takeGlyphs(const QTextLine& line, const std::vector<StyledRun>& runs, int baseline) {
        const int width = static_cast<int>(std::ceil(line.naturalTextWidth()));
        m_lines.push_back({m_result.pieces.size(), width});
        int start = 0;
        for (const StyledRun& run : runs) {
            const int from = std::max(start, line.textStart());
            start += static_cast<int>(run.text.size());
            const int to = std::min(start, line.textStart() + line.textLength());
            if (from >= to)
                continue;
            GlyphPiece piece{.glyphs = line.glyphRuns(from, to - from),
                             .offset = QPointF(0, -run.rise),
                             .underline = {},
                             .colour = run.colour};
            if (run.underline) {
                const double x1 = line.cursorToX(from), x2 = line.cursorToX(to);
                piece.underline =
                    underlineBelow(run.font, QPointF(std::min(x1, x2), baseline), std::abs(x2 - x1));
            }
            m_result.pieces.push_back(std::move(piece));
        }
    }

    static QRectF underlineBelow(const QFont& font, QPointF start, double length) {
        const QFontMetricsF metrics(font);
        const double thickness = std::max(1.0, std::round(metrics.lineWidth()));
        const double y = start.y() + std::max(1.0, std::round(metrics.underlinePos()));
        return {start.x(), y, length, thickness};
    }

    /// Letters below each other, each in the middle of the column; the next column stands to the right.
    void addColumn(const std::vector<StyledRun>& runs) {
        std::vector<GlyphText> cells;
        QSize column(0, 0);
        for (const StyledRun& run : runs) {
            for (const QString& letter : letters(run.text)) {
                if (m_stacked++ >= kMaxStacked)
                    break;
                StyledRun alone = run;
                alone.text = letter;
                Layouter cell(m_look, m_fonts, false);
                cell.addLine({alone});
                cell.alignLines();
                column = {std::max(column.width(), cell.m_result.size.width()),
                          column.height() + cell.m_result.size.height()};
                cells.push_back(std::move(cell.m_result));
            }
        }
        m_lines.push_back({m_result.pieces.size(), column.height()});
        const double gap = limitedFontSize(m_look.size) * kDotsPerInch / 72 * kColumnGap;
        QPoint corner(m_lines.size() > 1 ? m_result.size.width() + static_cast<int>(gap) : 0, 0);
        for (GlyphText& cell : cells) {
            for (GlyphPiece& piece : cell.pieces) {
                shift(piece, corner + QPoint((column.width() - cell.size.width()) / 2, 0));
                m_result.pieces.push_back(std::move(piece));
            }
            corner.ry() += cell.size.height();
        }
        m_result.size.setWidth(corner.x() + column.width());
    }

    static void shift(GlyphPiece& piece, QPointF by) {
        piece.offset += by;
        piece.underline.translate(by);
    }

    /// Settles the long side of the text and aligns the lines along it.
    void alignLines() {
        int longest = 0;
        for (const PlacedLine& line : m_lines)
            longest = std::max(longest, line.extent);
        const int place = m_columns ? verticalOf(m_look.alignment) : horizontalOf(m_look.alignment);
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            const int move = (longest - m_lines[i].extent) * (place + 1) / 2;
            const std::size_t end =
                i + 1 < m_lines.size() ? m_lines[i + 1].firstPiece : m_result.pieces.size();
            for (std::size_t k = m_lines[i].firstPiece; k < end; ++k)
                shift(m_result.pieces[k], m_columns ? QPointF(0, move) : QPointF(move, 0));
        }
        m_columns ? m_result.size.setHeight(longest) : m_result.size.setWidth(longest);
    }

    const TextLook& m_look;
    const FontSet& m_fonts;
    const bool m_columns; ///< Whether each line is a column of letters.
    GlyphText m_result;
    std::vector<PlacedLine> m_lines;
    std::vector<int> m_pending; ///< Baselines of the lines of the layout in work.
    int m_stacked = 0;          ///< Letters in columns so far.
};

/// The short texts that a thread has laid out: the labels of a chart that is drawn again are mostly the same.
class RecentTexts {
public:
    RecentTexts() { s_own = this; }
    ~RecentTexts() { s_own = nullptr; }
    RecentTexts(const RecentTexts&) = delete;
    RecentTexts& operator=(const RecentTexts&) = delete;

    GlyphText find(const TextLook& look, std::string_view text, const FontSet& fonts) {
        const auto lay = [&] { return Layouter(look, fonts, look.vertical).lay(text); };
        if (text.size() > kLongest)
            return lay();
        if (const int now = fontGeneration(); m_generation != now) {
            m_texts.clear();
            m_generation = now;
        }
        const auto found = m_texts.find(key(look, text, fonts));
        if (found != m_texts.end())
            return found->second;
        GlyphText made = lay();
        if (m_generation != fontGeneration()) // a face made room for another
            return made;
        if (m_texts.size() >= kMost)
            m_texts.clear();
        m_texts.emplace(m_key, made);
        // On the thread of the application object no font outlives it.
        static std::atomic<int> s_application = 0;
        if (const int now = applicationCount(); s_application.exchange(now) != now) {
            qAddPostRoutine([] {
                if (s_own != nullptr)
                    s_own->m_texts.clear();
            });
        }
        return made;
    }

private:
    static constexpr std::size_t kLongest = 64; ///< bytes
    static constexpr std::size_t kMost = 256;
    static thread_local RecentTexts* s_own; ///< of this thread, as long as it has one

    /// All that the layout depends on.
    const std::string& key(const TextLook& look, std::string_view text, const FontSet& fonts) {
        m_key.clear();
        const auto add = [this](auto value) {
            m_key.append(reinterpret_cast<const char*>(&value), sizeof(value));
        };
        add(look.size);
        add(look.widthSize);
        add(look.colour);
        add(look.alignment);
        add(look.wrapWidth);
        add(static_cast<char>(look.vertical));
        add(static_cast<char>(fonts.smooth));
        const auto addName = [&](std::string_view name) {
            add(name.size());
            m_key += name;
        };
        addName(look.font);
        for (const std::string& file : fonts.files)
            addName(file);
        m_key += text;
        return m_key;
    }

    std::unordered_map<std::string, GlyphText> m_texts;
    std::string m_key; ///< of the text that was asked for last
    int m_generation = 0;
};

thread_local RecentTexts* RecentTexts::s_own = nullptr;

} // namespace

GlyphText layOutGlyphs(const TextLook& look, std::string_view text, const FontSet& fonts) {
    if (text.empty() || !textAvailable())
        return {};
    static thread_local RecentTexts s_recent;
    return s_recent.find(look, text, fonts);
}

} // namespace chartdraw
