#include "example.h"

Example::Example(int kind, int width, int height, const QString& title, const QString& subtitle) {
    m_layout.m_chartType = kind;
    m_layout.SetChartSize(width, height);
    m_layout.m_edgeColor.m_color = kTransparent;
    m_layout.m_defaultFont.m_fileName = "normal";
    m_layout.m_labelFont = Font("normal", 9);
    m_layout.m_legendFont = Font("normal", 9);
    m_layout.m_legendEdgeColor.m_color = kTransparent;
    m_layout.m_legendBackColor.m_color = kTransparent;
    SetTitle(title);
    CChartTitle below;
    below.m_show = true;
    below.m_text = Narrow(subtitle).c_str();
    below.m_font = Font("normal", 9);
    below.m_fontColor.m_color = 0x666666;
    m_layout.m_titles.push_back(below);
}

void Example::SetTitle(const QString& title) {
    m_layout.m_titles = CChartTitles();
    CChartTitle above;
    above.m_show = true;
    above.m_text = Narrow(title).c_str();
    above.m_font = Font("bold", 15);
    above.m_fontColor.m_color = 0x222222;
    m_layout.m_titles.push_back(above);
}

bool Example::EditLayout() {
    return ShowChartLayoutWnd(m_layout);
}

Examples MakeExamples() {
    Examples examples;
    examples.push_back(MakePieExample());
#ifdef DEMO_HAS_XY
    examples.push_back(MakeXYExample());
#endif
    for (const auto make :
         {MakeFinanceExample, MakeAngularMeterExample, MakeLinearMeterExample, MakePolarExample})
        examples.push_back(make());
    return examples;
}

std::string Narrow(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

NarrowTexts::NarrowTexts(const std::vector<QString>& wide) {
    for (const QString& text : wide)
        texts.push_back(Narrow(text));
    for (const std::string& text : texts)
        pointers.push_back(text.c_str());
}

CChartFont Font(const char* file, double size) {
    CChartFont font;
    font.m_fileName = file;
    font.m_size = size;
    return font;
}

CChartColor Color(std::uint32_t value) {
    CChartColor color;
    color.m_color = value;
    return color;
}
