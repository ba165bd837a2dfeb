#include "engine/text/markup.h"
#include "tests/expect.h"
#include <iomanip>
#include <sstream>

namespace chartdraw {
namespace {
/// Lines as "style:text" parts between bars, lines between slashes: "f=bold:a|:b" / ":c".
std::string dump(const std::vector<MarkupLine>& lines) {
    std::ostringstream out;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        out << (i ? " / " : "");
        for (std::size_t k = 0; k < lines[i].size(); ++k) {
            const RunStyle& style = lines[i][k].style;
            out << (k ? "|" : "");
            if (!style.font.empty()) out << "f=" << style.font << ' ';
            if (style.size != 0) out << "s=" << style.size << ' ';
            if (style.colour != kDefaultColour) out << "c=" << std::hex << style.colour << std::dec << ' ';
            out << (style.underline ? "u " : "") << (style.script > 0 ? "^ " : style.script < 0 ? "_ " : "");
            out << ':' << lines[i][k].text;
        }
    }
    return out.str();
}
} // namespace

TEST(Markup, RunsAndLines) {
    const std::tuple<const char*, const char*> cases[] = {
        {"", ""},
        {"plain", ":plain"},
        {"<*font=bold*>12 Mar", "f=bold :12 Mar"},
        {"<*font=gulim.ttc|1*>a<*/*>b", "f=gulim.ttc|1 :a|:b"},
        {"a<*size=12.5*>b<*size=1e9*>c", ":a|s=12.5 :b|s=1000 :c"},
        {"<*color=FF8000*>a<*color=80ff0000*>b<*color=0x12*>c", "c=ff8000 :a|c=80ff0000 :b|c=12 :c"},
        {"<*font=x.ttf, size=9 ,underline*>a", "f=x.ttf s=9 u :a"},
        {"H<*sub*>2<*/*>O m<*super*>2", ":H|_ :2|:O m|^ :2"},
        {"<*underline*>a<*underline=0*>b<*/*>c<*/*>d", "u :a|:b|u :c|:d"},
        {"a<*br*>b\nc\r\nd\re", ":a / :b / :c / :d / :e"},
        {"<*underline*>a\nb<*br*>c", "u :a / u :b / u :c"},
        {"a\n\nb\n", ":a /  / :b / "},
        // "/" goes back one tag, also over an unknown one, and never below the box's own look.
        {"<*size=9*>a<*blink*>b<*/*>c<*/*>d<*/*>e", "s=9 :abc|:de"},
        {"<*size=9*>a<*br*>b<*/*>c", "s=9 :a / s=9 :b|:c"},
        // Values that make no sense change nothing.
        {"<*size=x,color=red,size=-3,size=nan*>a", ":a"},
        {"<**>a<*=*>b<*,*>c", ":abc"},
        // What is no closed tag is text.
        {"a<*font=bold", ":a<*font=bold"},
        {"a<b <* c <*size=9*>d", ":a<b <* c |s=9 :d"},
        {"<*size=\n9*>", ":<*size= / :9*>"},
        {"<*", ":<*"},
        {"<", ":<"},
        {"*>", ":*>"},
        {"<*>", ":<*>"},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(dump(parseMarkup(text)), expected) << text;
}

TEST(Markup, ZeroBytesAreText) {
    const std::vector<MarkupLine> lines = parseMarkup(std::string_view("a\0b<*sub*>\0", 11));
    ASSERT_EQ(lines.size(), 1U);
    ASSERT_EQ(lines[0].size(), 2U);
    EXPECT_EQS((lines[0][0].text, std::string("a\0b", 3)), (lines[0][1].text, std::string(1, '\0')));
}
} // namespace chartdraw
