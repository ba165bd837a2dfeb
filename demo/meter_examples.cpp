#include "example.h"

#include <algorithm>

namespace {

struct Zone {
    double from, to;
    std::uint32_t color;
    const char* text;
};

constexpr std::uint32_t kGood = 0x7FB685;
constexpr std::uint32_t kFair = 0xE3B34C;
constexpr std::uint32_t kBad = 0xC94F43;

/// What the two meters share: a scale, one pointer, and the value that it shows.
template <class Meter>
class MeterExample : public LookExample<Meter> {
public:
    std::optional<Dial> GetDial() const override {
        return Dial{m_look.m_lowerLimit, m_look.m_upperLimit, m_value};
    }
    void SetDial(double value) override { m_value = value; }

protected:
    using LookExample<Meter>::m_look;
    using Example::m_layout;

    MeterExample(int kind, int width, int height, const QString& title, const QString& subtitle, double value)
        : LookExample<Meter>(kind, width, height, title, subtitle), m_value(value) {
        m_layout.m_showLegend = m_layout.m_showLabel = false;
        m_look.m_useLabelStyle = true;
        m_look.m_labelStyle.m_font = Font("normal", 10);
        m_look.m_labelStyle.m_fontColor.m_color = 0x333333;
        m_look.m_labelStyle.m_backColor.m_color = kTransparent;
        m_look.m_majorTickWidth = 2;
        CMeterPointer pointer;
        pointer.m_fillColor.m_color = 0x2F5D8A;
        pointer.m_edgeColor.m_color = 0x1D3D5C;
        pointer.m_shape = 2;
        m_look.m_pointers.push_back(pointer);
    }
    void AddText(const char* text, int x, int y, double size) {
        CChartTextBox box;
        box.m_text = text;
        box.m_font = Font("bold", size);
        box.m_fontColor.m_color = 0x555555;
        box.m_backColor.m_color = kTransparent;
        box.m_x = x;
        box.m_y = y;
        m_look.m_texts.push_back(box);
    }
    CMeterData Data() const {
        CMeterData data;
        data.values = &m_value;
        data.count = std::min(1, m_look.m_pointers.size()); // the editor may have deleted it
        return data;
    }

    double m_value;
};

class AngularMeterExample : public MeterExample<CAngularMeter> {
public:
    AngularMeterExample()
        : MeterExample(4, 460, 400, QStringLiteral("Oven"), QStringLiteral("Temperature in degrees Celsius"),
                       228) {
        m_layout.m_angularPlotArea.m_centerX = 230;
        m_layout.m_angularPlotArea.m_centerY = 235;
        m_layout.m_angularPlotArea.m_radius = 135;
        m_layout.m_angularPlotArea.m_startAngle = -135;
        m_layout.m_angularPlotArea.m_endAngle = 135;
        m_look.m_upperLimit = 300;
        m_look.m_majorTickInc = 50;
        m_look.m_minorTickInc = 10;
        m_look.m_microTickInc = 0;
        CAngularRing face;
        face.m_startRadius = 0;
        face.m_endRadius = 150;
        face.m_fillColor.m_color = 0xF4F6F8;
        face.m_edgeColor.m_color = 0xC5CCD3;
        m_look.m_rings.push_back(face);
        for (const Zone& zone : {Zone{0, 180, kFair, ""}, {180, 250, kGood, ""}, {250, 300, kBad, ""}}) {
            CMeterZoneAngular part;
            part.m_startValue = zone.from;
            part.m_endValue = zone.to;
            part.m_fillColor.m_color = zone.color | 0x40000000;
            part.m_edgeColor.m_color = kTransparent;
            m_look.m_zones.push_back(part);
        }
        AddText("\xC2\xB0"
                "C",
                230, 300, 14);
    }

    const char* Name() const override { return "Angular meter"; }
    const char* File() const override { return "angular-meter"; }
    bool Edit() override { return ShowAngularMeterWnd(m_look, m_layout); }
    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        return RenderAngularMeter(m_look, m_layout, Data(), format, picture);
    }
};

class LinearMeterExample : public MeterExample<CLinearMeter> {
public:
    LinearMeterExample()
        : MeterExample(5, 280, 440, QStringLiteral("Flour silo"), QStringLiteral("Filled, in percent"), 64) {
        m_layout.m_linearPlotArea.m_left = 120;
        m_layout.m_linearPlotArea.m_top = 90;
        m_layout.m_linearPlotArea.m_width = 50;
        m_layout.m_linearPlotArea.m_height = 310;
        m_look.m_majorTickInc = 20;
        m_look.m_minorTickInc = 5;
        m_look.m_microTickInc = 0;
        for (const Zone& zone : {Zone{0, 15, kBad, "order"}, {15, 35, kFair, "low"}, {35, 100, kGood, ""}}) {
            CMeterZoneLinear part;
            part.m_startValue = zone.from;
            part.m_endValue = zone.to;
            part.m_text = zone.text;
            part.m_font = Font("normal", 8);
            part.m_fontColor.m_color = 0xFFFFFF;
            part.m_backColor.m_color = zone.color;
            part.m_edgeColor.m_color = kTransparent;
            m_look.m_zones.push_back(part);
        }
    }

    const char* Name() const override { return "Linear meter"; }
    const char* File() const override { return "linear-meter"; }
    bool Edit() override { return ShowLinearMeterWnd(m_look, m_layout); }
    ChartRenderResult Render(ChartPictureFormat format, CChartPicture& picture) const override {
        return RenderLinearMeter(m_look, m_layout, Data(), format, picture);
    }
};

} // namespace

std::unique_ptr<Example> MakeAngularMeterExample() {
    return std::make_unique<AngularMeterExample>();
}

std::unique_ptr<Example> MakeLinearMeterExample() {
    return std::make_unique<LinearMeterExample>();
}
