#include "example.h"

namespace {

struct Cost {
    const char* label;
    double value;
    std::uint32_t color;
};

// Thousands a year, of a bakery that does not exist.
constexpr Cost kCosts[] = {
    {"Wages", 92.4, 0x2F5D8A},    {"Flour and butter", 61.8, 0x5B94C0}, {"Rent", 38.5, 0x9CC3DD},
    {"Energy", 31.2, 0xE3B34C},   {"Equipment", 17.6, 0xD98A4E},        {"Delivery", 12.9, 0xB9614F},
    {"Insurance", 6.3, 0x8A8F98},
};

class PieExample : public LookExample<CPieChart> {
public:
    PieExample()
        : LookExample(0, 580, 440, QStringLiteral("Where the money goes"),
                      QStringLiteral("A small bakery, costs of a year in thousands")) {
        m_layout.m_labelFormat = "{label}: {percent|1}%";
        m_layout.m_showLegend = false;
        m_layout.m_piePlotArea.m_centerX = 290;
        m_layout.m_piePlotArea.m_centerY = 250;
        m_layout.m_piePlotArea.m_radius = 130;
        m_look.m_labelLayout = 0;
        m_look.m_labelPosition = 20;
        m_look.m_edgeColor.m_color = 0xFFFFFF;
        m_look.m_joinLineColor.m_color = 0x999999;
        m_look.m_useDonut = true;
        m_look.m_donutInnerRadius = 45;
        for (const Cost& cost : kCosts) {
            AddSector(QString::fromUtf8(cost.label), cost.color);
            m_data.labels.push_back(QString::fromUtf8(cost.label));
            m_data.values.push_back(cost.value);
        }
    }

    const char* Name() const override { return "Pie chart"; }
    const char* File() const override { return "pie"; }
    bool Edit() override { return ShowPieChartWnd(m_look, m_layout); }

    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        // The editor can rename the sectors. But once it has added or deleted some, a sector's place no
        // longer tells which number it names, and only the names that came with the numbers are sure.
        const bool named = m_look.m_sectors.size() == static_cast<int>(m_data.values.size());
        const NarrowTexts labels(m_data.labels);
        CPieChartData data;
        data.values = m_data.values.data();
        data.labels = named ? nullptr : labels.pointers.data();
        data.count = static_cast<int>(m_data.values.size());
        return RenderPieChart(m_look, m_layout, data, format, picture);
    }

    bool Take(const ChartData& data, const QString& title) override {
        const auto* shares = std::get_if<LabelledValues>(&data);
        if (shares == nullptr)
            return false;
        m_data = *shares;
        m_look.m_sectors = CPieChartSectors();
        for (const QString& label : m_data.labels)
            AddSector(label, kPaletteColor);
        SetTitle(title);
        return true;
    }

private:
    void AddSector(const QString& name, std::uint32_t color) {
        CPieChartSector sector;
        sector.m_text = Narrow(name).c_str();
        sector.m_color.m_color = color;
        m_look.m_sectors.push_back(sector);
    }

    LabelledValues m_data;
};

} // namespace

std::unique_ptr<Example> MakePieExample() {
    return std::make_unique<PieExample>();
}
