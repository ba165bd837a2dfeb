#include "render/dressing.h"
#include "render/chart_holder.h"
#include "render/utf8_text.h"
#include "resources/string_table.h"
#include <algorithm>

// Where a call takes several colours they are resolved beforehand: a pattern is made by a call of its own,
// and the order in which arguments are evaluated is the compiler's.

FillAndEdge ResolveColors(BaseChart* chart, const CChartColor& fill, const CChartColor& edge) {
    const int fillColor = fill.GetChartColor(chart);
    return {fillColor, edge.GetChartColor(chart)};
}

void SetBoxBackground(BaseChart* chart, Box* box, const CChartColor& background, const CChartColor& edge,
                      const CChartRaisedEffect& effect) {
    const auto [fill, line] = ResolveColors(chart, background, edge);
    CBox_setBackground(box, fill, line, effect.GetRaisedEffect());
}

void DrawChartBackground(BaseChart* chart, const CChartLayout& layout) {
    const auto [fill, edge] = ResolveColors(chart, layout.m_backColor, layout.m_edgeColor);
    CBaseChart_setBackground(chart, fill, edge, layout.m_effect.GetRaisedEffect());
    if (layout.m_useWallPaper)
        CBaseChart_setBgImage(chart, CUtf8Text(layout.m_wallPaperImage), CHART_CENTER);
    if (layout.m_roundedFrame)
        CBaseChart_setRoundedFrame(chart, 0xffffff, 10, -1, -1, -1);
    const CUtf8Text font(layout.m_defaultFont.m_fileName);
    CBaseChart_setDefaultFonts(chart, font, font, font, font);
}

static Box* DrawTitle(BaseChart* chart, const CChartTitle& title) {
    const int fontColor = title.m_fontColor.GetChartColor(chart);
    TextBox* textBox = CBaseChart_addTitle2(chart, title.m_alignment, CUtf8Text(title.m_text),
                                            CUtf8Text(title.m_font.m_fileName), title.m_font.m_size,
                                            fontColor, CHART_TRANSPARENT, CHART_TRANSPARENT);
    Box* box = DressTextBox(chart, textBox, title);
    if (title.m_usePosition)
        CBox_setPos(box, title.m_x, title.m_y);
    return box;
}

void DrawChartTitles(BaseChart* chart, const CChartLayout& layout) {
    for (int i = 0; i < layout.m_titles.size(); ++i)
        if (layout.m_titles[i].m_show)
            DrawTitle(chart, layout.m_titles[i]);
}

int TopTitleRoom(const CChartLayout& layout) {
    const CChartHolder scratch(MultiChart2BaseChart(
        CMultiChart_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0)));
    DrawChartBackground(scratch.Get(), layout);
    constexpr int columns[] = {0, 1, 2, 0, 2}; // of the codes from CHART_TOP_LEFT to CHART_TOP_RIGHT2
    int rooms[3] = {};
    for (int i = 0; i < layout.m_titles.size(); ++i) {
        const CChartTitle& title = layout.m_titles[i];
        const bool stacks = !title.m_usePosition && title.m_alignment >= CHART_TOP_LEFT &&
                            title.m_alignment <= CHART_TOP_RIGHT2;
        if (title.m_show && stacks)
            rooms[columns[title.m_alignment - CHART_TOP_LEFT]] +=
                CBox_getHeight(DrawTitle(scratch.Get(), title));
    }
    return std::max({rooms[0], rooms[1], rooms[2]});
}

void DrawChartLegend(BaseChart* chart, const CChartLayout& layout, bool addSampleKey) {
    if (!layout.m_showLegend)
        return;
    LegendBox* legend =
        CBaseChart_addLegend(chart, layout.m_legendX, layout.m_legendY, layout.m_legendVertical,
                             CUtf8Text(layout.m_legendFont.m_fileName), layout.m_legendFont.m_size);
    TextBox* textBox = LegendBox2TextBox(legend);
    Box* box = TextBox2Box(textBox);
    CTextBox_setFontColor(textBox, layout.m_legendFontColor.GetChartColor(chart));
    SetBoxBackground(chart, box, layout.m_legendBackColor, layout.m_legendEdgeColor, layout.m_legendEffect);
    CTextBox_setText(textBox, CUtf8Text(layout.m_legendFormat));
    if (addSampleKey)
        CLegendBox_addKey(legend, LoadChartString(ChartText::SampleLegend), CHART_DEFAULT_COLOR, 0, nullptr);
}

void DressLabelBox(BaseChart* chart, const CChartLayout& layout, TextBox* textBox) {
    SetBoxBackground(chart, TextBox2Box(textBox), layout.m_labelBackColor, layout.m_labelEdgeColor,
                     layout.m_labelEffect);
    CTextBox_setFontAngle(textBox, layout.m_labelAngle, layout.m_labelVertical);
}
