#include "engine/text/fitted_text.h"

#include <algorithm>
#include <utility>

namespace chartdraw {

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
        return cutToFit(part, [&](const std::string& tried) { return fits(TextBlock(look, tried, fonts)); });
    };
    // Each line for itself, so that a short one below a long one stays.
    std::string lines;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        lines += (start > 0 ? "\n" : "") + cut(text.substr(start, end - start));
        start = end + 1;
    }
    TextBlock shortened(look, lines, fonts);
    return fits(shortened) ? std::move(shortened) : TextBlock(look, cut(text), fonts);
}

} // namespace chartdraw
