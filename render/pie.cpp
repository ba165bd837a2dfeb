#include "render/pie.h"
#include "render/dressing.h"
#include "render/sample_data.h"
#include "render/utf8_text.h"
#include "resources/string_table.h"

TextBox* DrawPieLabels(const PieHolder& holder, const CChartLayout& layout) {
    if (!layout.m_showLabel) {
        CPieChart_setLabelFormat(holder.pie, " "); // hides the labels; their room and join lines stay
        return nullptr;
    }
    BaseChart* chart = holder.chart.Get();
    TextBox* textBox =
        CPieChart_setLabelStyle(holder.pie, CUtf8Text(layout.m_labelFont.m_fileName),
                                layout.m_labelFont.m_size, layout.m_labelFontColor.GetChartColor(chart));
    DressLabelBox(chart, layout, textBox);
    CPieChart_setLabelFormat(holder.pie, CUtf8Text(layout.m_labelFormat));
    return textBox;
}

void SetPieData(PieChart* pie, const PieData& data) {
    CPieChart_setData(pie, data.values.data(), static_cast<int>(std::ssize(data.values)), data.labels.data(),
                      static_cast<int>(std::ssize(data.labels)));
}

static void DrawShape(PieChart* pie, const CPieChart& look, const CPieChartPA& area) {
    if (look.m_show3D)
        CPieChart_set3D(pie, look.m_depth3D, look.m_angle3D, look.m_shadow3D);
    CPieChart_setLabelLayout(pie, look.m_labelLayout, look.m_labelPosition, -1, -1);
    CPieChart_setStartAngle(pie, look.m_startAngle, look.m_clockWise);
    if (look.m_useDonut) {
        const std::int64_t inner = std::int64_t{area.m_radius} * look.m_donutInnerRadius / 100;
        CPieChart_setDonutSize(pie, area.m_centerX, area.m_centerY, static_cast<int>(inner), area.m_radius);
    }
}

static void DrawSectors(const PieHolder& holder, const CPieChart& look) {
    BaseChart* chart = holder.chart.Get();
    for (int i = 0; i < look.m_sectors.size(); ++i) {
        const CPieChartSector& looks = look.m_sectors[i];
        Sector* sector = CPieChart_sector(holder.pie, i);
        CSector_setColor(sector, looks.m_color.GetChartColor(chart), -1, -1);
        if (looks.m_showExplode)
            CSector_setExplode(sector, looks.m_useDistance ? looks.m_distance : -1);
    }
    const int edgeColor = look.m_edgeColor.GetChartColor(chart);
    const int joinLineColor = look.m_joinLineColor.GetChartColor(chart);
    CPieChart_setLineColor(holder.pie, edgeColor, joinLineColor);
}

PieHolder BeginPieChart(const CChartLayout& layout) {
    PieChart* pie =
        CPieChart_create(layout.m_width, layout.m_height, CHART_BACKGROUND_COLOR, CHART_TRANSPARENT, 0);
    PieHolder holder{pie, CChartHolder(PieChart2BaseChart(pie))};
    const CPieChartPA& area = layout.m_piePlotArea;
    CPieChart_setPieSize(pie, area.m_centerX, area.m_centerY, area.m_radius);
    DrawChartBackground(holder.chart.Get(), layout);
    DrawChartTitles(holder.chart.Get(), layout);
    return holder;
}

void FinishPieChart(const PieHolder& holder, const CPieChart& look, const CChartLayout& layout,
                    const PieData& data) {
    SetPieData(holder.pie, data);
    if (TextBox* labels = DrawPieLabels(holder, layout))
        CTextBox_setAlignment(labels, look.m_labelAlignment);
    DrawChartLegend(holder.chart.Get(), layout, false);
    DrawShape(holder.pie, look, layout.m_piePlotArea);
    DrawSectors(holder, look);
}

/// The names of the model's sectors; without sectors, five with a number.
static std::vector<std::string> SampleLabels(const CPieChart& look) {
    std::vector<std::string> labels;
    for (int i = 0; i < look.m_sectors.size(); ++i)
        labels.emplace_back(CUtf8Text(look.m_sectors[i].m_text));
    for (int i = 0; look.m_sectors.empty() && i < 5; ++i)
        labels.push_back(FormatChartString(ChartText::SampleSector, i + 1));
    return labels;
}

void DrawPieChart(CChartPreview& view) {
    const CPieChart& look = view.m_ownPieChart;
    const CChartLayout& layout = *view.m_layout;
    const PieHolder holder = BeginPieChart(layout);
    const std::vector<std::string> labels = SampleLabels(look);
    const CRandomTable table(0, 2, static_cast<int>(std::ssize(labels)));
    CRanTable_setCol(table.Get(), 0, 10.0, 100.0);
    const CRoundedData values(table, 0);
    FinishPieChart(holder, look, layout, {values, TextPointers(labels)});
    StorePicture(&view, holder.chart.Get());
}
