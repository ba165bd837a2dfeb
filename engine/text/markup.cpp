#include "engine/text/markup.h"

#include "engine/text/fonts.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace chartdraw {

namespace {

// They bound the memory that hostile text can take; no sensible text comes near.
constexpr std::size_t kMaxTagLength = 512;
constexpr std::size_t kMaxDepth = 256;
constexpr std::size_t kMaxRuns = 1000; ///< after which the look of a line no longer changes within it

template <class Number, class... Base>
std::optional<Number> parseNumber(std::string_view text, Base... base) {
    Number number{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base...);
    if (error != std::errc() || stop != end)
        return std::nullopt;
    return number;
}

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void applyAttribute(RunStyle& style, std::string_view attribute) {
    const auto equals = attribute.find('=');
    const bool bare = equals == attribute.npos;
    const std::string_view key = trimmed(attribute.substr(0, equals));
    const std::string_view value = bare ? std::string_view() : trimmed(attribute.substr(equals + 1));
    const bool on = bare || value != "0";
    if (key == "font") {
        // A text may come from anywhere: it names faces of the font folders, and no other file of the
        // machine.
        if (value.find_first_of("/\\") == value.npos)
            style.font = value;
    } else if (key == "size") {
        const auto points = parseNumber<double>(value);
        if (points && *points > 0)
            style.size = std::min(*points, kMaxFontSize);
    } else if (key == "color") {
        const bool prefixed = value.starts_with("0x") || value.starts_with("0X");
        if (const auto colour = parseNumber<Colour>(value.substr(prefixed ? 2 : 0), 16))
            style.colour = *colour;
    } else if (key == "underline") {
        style.underline = on;
    } else if (key == "super") {
        style.script = on ? 1 : 0;
    } else if (key == "sub") {
        style.script = on ? -1 : 0;
    }
}

class Parser {
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    std::vector<MarkupLine> parse() {
        std::size_t at = 0;
        while (at < m_text.size()) {
            const std::size_t special = m_text.find_first_of("<\n\r", at);
            addText(m_text.substr(at, special - at));
            if (special == m_text.npos)
                break;
            at = special + step(special);
        }
        return std::move(m_lines);
    }

private:
    /// Takes the line break or tag at `at`, or one character of plain text. Returns how much it took.
    std::size_t step(std::size_t at) {
        if (m_text[at] != '<') {
            m_lines.emplace_back();
            return m_text.substr(at).starts_with("\r\n") ? 2 : 1;
        }
        if (const auto content = tagAt(at)) {
            applyTag(*content);
            return content->size() + 4;
        }
        addText(m_text.substr(at, 1));
        return 1;
    }

    /// What stands between <* and *>, none where no tag begins. Looks at most kMaxTagLength ahead.
    std::optional<std::string_view> tagAt(std::size_t at) const {
        const std::string_view window = m_text.substr(at, kMaxTagLength + 4);
        if (!window.starts_with("<*"))
            return std::nullopt;
        const auto close = window.find("*>", 2);
        const std::string_view content = window.substr(2, close - 2);
        if (close == window.npos || content.find("<*") != content.npos || content.find('\n') != content.npos)
            return std::nullopt;
        return content;
    }

    void applyTag(std::string_view content) {
        if (trimmed(content) == "br") {
            m_lines.emplace_back();
            return;
        }
        if (trimmed(content) == "/") {
            if (!m_outer.empty()) {
                m_style = std::move(m_outer.back());
                m_outer.pop_back();
            }
            return;
        }
        if (m_outer.size() >= kMaxDepth)
            return;
        // An unknown tag counts as one too, so that its own "/" goes back no further than to it.
        m_outer.push_back(m_style);
        for (std::size_t from = 0; from <= content.size();) {
            const std::size_t comma = std::min(content.find(',', from), content.size());
            applyAttribute(m_style, content.substr(from, comma - from));
            from = comma + 1;
        }
    }

    void addText(std::string_view text) {
        if (text.empty())
            return;
        MarkupLine& line = m_lines.back();
        if (line.empty() || (line.back().style != m_style && m_runs < kMaxRuns)) {
            line.push_back({.text = {}, .style = m_style});
            ++m_runs;
        }
        line.back().text += text;
    }

    std::string_view m_text;
    std::vector<MarkupLine> m_lines{1};
    std::size_t m_runs = 0;
    RunStyle m_style;
    std::vector<RunStyle> m_outer; ///< What stood before each open tag.
};

} // namespace

std::vector<MarkupLine> parseMarkup(std::string_view text) {
    return Parser(text).parse();
}

} // namespace chartdraw
