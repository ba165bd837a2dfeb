#include "charts.h"

#include <array>
#include <string>

namespace {

constexpr std::uint32_t kDefaultColor = 0xFFFFFFFF; // the library chooses
constexpr std::uint32_t kTransparent = 0xFF000000;

struct ExampleRow {
    const char* label;
    double value;
    std::uint32_t color;
};

// Thousands a year, of a bakery that does not exist.
constexpr ExampleRow kExample[] = {
    {"Wages", 92.4, 0x2F5D8A},    {"Flour and butter", 61.8, 0x5B94C0}, {"Rent", 38.5, 0x9CC3DD},
    {"Energy", 31.2, 0xE3B34C},   {"Equipment", 17.6, 0xD98A4E},        {"Delivery", 12.9, 0xB9614F},
    {"Insurance", 6.3, 0x8A8F98},
};

std::string Narrow(const QString& text) {
    return text.toLocal8Bit().toStdString();
}

CChartTitle Title(const QString& text, const char* font, int size, std::uint32_t color) {
    CChartTitle title;
    title.m_show = true;
    title.m_text = Narrow(text).c_str();
    title.m_font.m_fileName = font;
    title.m_font.m_size = size;
    title.m_fontColor.m_color = color;
    return title;
}

CPieChartSector Sector(const QString& name, std::uint32_t color) {
    CPieChartSector sector;
    sector.m_text = Narrow(name).c_str();
    sector.m_color.m_color = color;
    return sector;
}

bool EditPie(Charts& charts) {
    return ShowPieChartWnd(charts.pie, charts.layout);
}

ChartRenderResult RenderPie(const Charts& charts, ChartPictureFormat format, CChartPicture& picture) {
    // The editor can rename the sectors. But once it has added or deleted some, a sector's place no longer
    // tells which number it names, and only the names that came with the numbers are sure.
    const bool named = charts.pie.m_sectors.size() == static_cast<int>(charts.data.values.size());
    std::vector<std::string> texts;
    std::vector<const char*> labels;
    for (const QString& label : charts.data.labels)
        texts.push_back(Narrow(label));
    for (const std::string& text : texts)
        labels.push_back(text.c_str());
    const CPieChartData data{charts.data.values.data(), named ? nullptr : labels.data(),
                             static_cast<int>(charts.data.values.size())};
    return RenderPieChart(charts.pie, charts.layout, data, format, picture);
}

constexpr ChartKind kKinds[] = {
    {"Pie chart", "pie", EditPie, RenderPie},           {"XY chart", "xy", nullptr, nullptr},
    {"Finance chart", "finance", nullptr, nullptr},     {"Angular meter", "angular-meter", nullptr, nullptr},
    {"Linear meter", "linear-meter", nullptr, nullptr}, {"Polar chart", "polar", nullptr, nullptr},
};

} // namespace

std::span<const ChartKind> ChartKinds() {
    return kKinds;
}

Charts ExampleCharts() {
    Charts charts;
    CChartLayout& layout = charts.layout;
    layout.SetChartSize(580, 440);
    layout.m_edgeColor.m_color = kTransparent;
    layout.m_defaultFont.m_fileName = "normal";
    layout.m_titles.push_back(Title(QStringLiteral("Where the money goes"), "bold", 15, 0x222222));
    layout.m_titles.push_back(
        Title(QStringLiteral("A small bakery, costs of a year in thousands"), "normal", 9, 0x666666));
    layout.m_labelFormat = "{label}: {percent|1}%";
    layout.m_labelFont.m_fileName = "normal";
    layout.m_labelFont.m_size = 9;
    layout.m_showLegend = false;
    layout.m_piePlotArea.m_centerX = 290;
    layout.m_piePlotArea.m_centerY = 250;
    layout.m_piePlotArea.m_radius = 130;

    CPieChart& pie = charts.pie;
    pie.m_labelLayout = 0;
    pie.m_labelPosition = 20;
    pie.m_edgeColor.m_color = 0xFFFFFF;
    pie.m_joinLineColor.m_color = 0x999999;
    pie.m_useDonut = true;
    pie.m_donutInnerRadius = 45;
    for (const ExampleRow& row : kExample) {
        pie.m_sectors.push_back(Sector(QString::fromUtf8(row.label), row.color));
        charts.data.labels.push_back(QString::fromUtf8(row.label));
        charts.data.values.push_back(row.value);
    }
    return charts;
}

void ShowData(Charts& charts, const LabelledValues& data, const QString& title) {
    charts.data = data;
    charts.pie.m_sectors = CPieChartSectors();
    for (const QString& label : data.labels)
        charts.pie.m_sectors.push_back(Sector(label, kDefaultColor));
    charts.layout.m_titles = CChartTitles();
    charts.layout.m_titles.push_back(Title(title, "bold", 15, 0x222222));
}
