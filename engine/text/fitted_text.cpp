#include "engine/text/fitted_text.h"

#include <algorithm>
#include <utility>

namespace chartdraw {

namespace {

constexpr std::size_t kEllipsis = 3; // bytes
constexpr std::size_t kLeastCut = 2; // of text before it, that still tell something

/// Digits and signs alone: a part of them would be another number.
bool isNumber(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos &&
           text.find_first_not_of("0123456789.,+-% ") == std::string::npos;
}

} // namespace

std::string cutToFit(std::string_view whole, const std::function<bool(const std::string&)>& fits) {
    if (std::string all(whole); fits(all))
        return all;
    std::size_t few = 0, tooMany = whole.size();
    const auto cut = [&](std::size_t length) {
        while (length > 0 && (static_cast<unsigned char>(whole[length]) & 0xc0) == 0x80)
            --length;
        return std::string(whole.substr(0, length)) + "\u2026";
    };
    while (tooMany - few > 1) {
        const std::size_t middle = (few + tooMany) / 2;
        (fits(cut(middle)) ? few : tooMany) = middle;
    }
    return cut(few);
}

TextBlock fittedText(TextLook look, const std::string& text, const FontSet& fonts, QSize most) {
    const bool level = look.angle == 0 && !look.vertical;
    if (level && look.wrapWidth == 0 && most.width() > 0)
        look.wrapWidth = std::max(1, most.width() - look.marginLeft - look.marginRight);
    const auto fits = [&](const TextBlock& block) {
        return (most.width() <= 0 || block.size().width() <= most.width()) &&
               (most.height() <= 0 || block.size().height() <= most.height());
    };
    TextBlock block(look, text, fonts);
    if (text.empty() || fits(block))
        return block;
    const auto cut = [&](const std::string& part) {
        std::string result =
            cutToFit(part, [&](const std::string& tried) { return fits(TextBlock(look, tried, fonts)); });
        const bool whole = result == part;
        return whole || (!isNumber(part) && result.size() >= kEllipsis + kLeastCut) ? result : std::string();
    };
    // Each line for itself, so that a short one below a long one stays.
    std::string lines;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string line = cut(text.substr(start, end - start));
        lines += (lines.empty() || line.empty() ? "" : "\n") + line;
        start = end + 1;
    }
    TextBlock shortened(look, lines, fonts);
    return fits(shortened) ? std::move(shortened) : TextBlock(look, cut(text), fonts);
}

} // namespace chartdraw
