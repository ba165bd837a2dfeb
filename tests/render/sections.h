#pragma once
// The calls that a drawing is to make, in named sections, so that a table row tells only what its case
// changes.

#include "tests/recorder/recorder.h"
#include "tests/render/preview_fake.h"
#include <string>
#include <utility>
#include <vector>

using Lines = std::vector<std::string>;

class Sections {
public:
    Sections(std::initializer_list<std::pair<std::string, Lines>> sections) : m_sections(sections) {}

    Lines& operator[](const std::string& name) {
        for (auto& section : m_sections)
            if (section.first == name)
                return section.second;
        return m_sections.emplace_back(name, Lines()).second; // a misspelt name shows as calls at the end
    }
    Lines All() const {
        Lines all;
        for (const auto& section : m_sections)
            all.insert(all.end(), section.second.begin(), section.second.end());
        return all;
    }

private:
    std::vector<std::pair<std::string, Lines>> m_sections;
};

inline Lines drawnBy(void (*routine)(CChartPreview&), PreviewFake& view) {
    const recorder::Recording recording;
    routine(view);
    return recording.Lines();
}

// Sections that all kinds have, for new layouts.

inline const Lines kBackgroundCalls = {
    "CBaseChart_setBackground(BaseChart#1, 0x00ffffff, 0x33808080, 0)",
    R"(CBaseChart_setDefaultFonts(BaseChart#1, "gulim.ttc", "gulim.ttc", "gulim.ttc", "gulim.ttc"))"};

/// `box`: the number of the legend's text box.
inline Lines legendCalls(int box, bool sampleKey) {
    const std::string number = std::to_string(box);
    Lines lines = {R"(CBaseChart_addLegend(BaseChart#1, 320, 12, false, "gulim.ttc", 12))",
                   "LegendBox2TextBox(LegendBox#1)",
                   "TextBox2Box(TextBox#" + number + ")",
                   "CTextBox_setFontColor(TextBox#" + number + ", 0)",
                   "CBox_setBackground(Box#" + number + ", -1, 0, 0)",
                   "CTextBox_setText(TextBox#" + number + R"(, "{dataSetName}"))"};
    if (sampleKey)
        lines.push_back(R"(CLegendBox_addKey(LegendBox#1, "Legend", -1, 0, null))");
    return lines;
}

inline const Lines kEndCalls = {"CBaseChart_makeChart2(BaseChart#1, 4)",
                                "CBaseChart_getDrawArea(BaseChart#1)", "CDrawArea_getWidth(DrawArea#1)",
                                "CDrawArea_getHeight(DrawArea#1)", "CBaseChart_destroy(BaseChart#1)"};

/// What dresses text box `box`: its background, then its angle.
inline Lines boxCalls(int box, const std::string& background, const std::string& angle) {
    const std::string number = std::to_string(box);
    return {"TextBox2Box(TextBox#" + number + ")",
            "CBox_setBackground(Box#" + number + ", " + background + ")",
            "CTextBox_setFontAngle(TextBox#" + number + ", " + angle + ")"};
}

inline Lines operator+(Lines lines, const Lines& rest) {
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
}
