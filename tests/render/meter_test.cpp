// The calls of the two meters, in order and value, in every branch.

#include "render/angular_meter.h"
#include "render/linear_meter.h"
#include "tests/render/sections.h"
#include <functional>
#include <gtest/gtest.h>

namespace {

struct Case {
    const char* name;
    std::function<void(PreviewFake&)> edit;
    std::function<void(Sections&)> expect;
};

Sections angularCalls() {
    return {{"create",
             {"CAngularMeter_create(500, 550, 0xffff0000, 0xff000000, 0)",
              "AngularMeter2BaseMeter(AngularMeter#1)", "BaseMeter2BaseChart(BaseMeter#1)"}},
            {"place", {"CAngularMeter_setMeter(AngularMeter#1, 250, 275, 200, -90, 90)"}},
            {"background", kBackgroundCalls},
            {"legend", legendCalls(1, true)},
            {"scale",
             {"CBaseMeter_setLineWidth(BaseMeter#1, 0, 1, 1, 1)",
              "CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1)"}},
            {"rings", {}},
            {"zones", {}},
            {"front", {}},
            {"end", kEndCalls}};
}

Sections linearCalls() {
    return {{"create",
             {"CLinearMeter_create(500, 550, 0xffff0000, 0xff000000, 0)",
              "LinearMeter2BaseMeter(LinearMeter#1)", "BaseMeter2BaseChart(BaseMeter#1)"}},
            {"place", {"CLinearMeter_setMeter(LinearMeter#1, 225, 75, 50, 400, 4, false)"}},
            {"background", kBackgroundCalls},
            {"legend", legendCalls(1, true)},
            {"scale",
             {"CBaseMeter_setLineWidth(BaseMeter#1, 0, 1, 1, 1)",
              "CBaseMeter_setScale(BaseMeter#1, 0, 100, 10, 5, 1)"}},
            {"zones", {}},
            {"front", {}},
            {"end", kEndCalls}};
}

template <class Meter>
void editScale(Meter& meter) {
    meter.m_axisWidth = 2;
    meter.m_majorTickWidth = 3;
    meter.m_minorTickWidth = 4;
    meter.m_microTickWidth = 5;
    meter.m_lowerLimit = 60;
    meter.m_upperLimit = -7.5; // goes on as it is
    meter.m_majorTickInc = 6.5;
    meter.m_minorTickInc = -1;
    meter.m_microTickInc = 0;
}
const Lines kScale = {"CBaseMeter_setLineWidth(BaseMeter#1, 2, 3, 4, 5)",
                      "CBaseMeter_setScale(BaseMeter#1, 60, -7.5, 6.5, -1, 0)"};

/// Two texts, two pointers and a label style, with one pattern, which is a call of its own.
template <class Meter>
void editFront(Meter& meter) {
    CChartTextBox text;
    meter.m_texts.push_back(text);
    text.m_text = "Stra\xc3\x9f"
                  "e";
    text.m_x = 3;
    text.m_y = -4;
    text.m_alignment = 9;
    text.m_font.m_fileName = "t.ttf";
    text.m_font.m_size = 8.5;
    text.m_fontColor.m_color = 0x010203;
    text.m_backColor.m_color = 0x040506;
    text.m_edgeColor.m_color = 0x070809;
    text.m_effect.m_value = 2;
    text.m_angle = 30;
    text.m_vertical = true;
    meter.m_texts.push_back(text);
    CMeterPointer pointer;
    meter.m_pointers.push_back(pointer);
    pointer.m_value = 1e9;
    pointer.m_fillColor.m_color = 0x112233;
    pointer.m_edgeColor.m_color = 0x445566;
    pointer.m_shape = 5;
    pointer.m_lengthRatio = 0.5;
    pointer.m_widthRatio = 2;
    meter.m_pointers.push_back(pointer);
    meter.m_labelStyle.m_font.m_fileName = "l.ttf";
    meter.m_labelStyle.m_font.m_size = 9;
    meter.m_labelStyle.m_fontColor.m_color = 0x223344;
    meter.m_labelStyle.m_backColor.m_type = 1;
    meter.m_labelStyle.m_backColor.m_patternFile = "p.png";
    meter.m_labelStyle.m_edgeColor.m_color = 0x99;
    meter.m_labelStyle.m_effect.m_value = -1;
    meter.m_labelStyle.m_angle = 45;
    meter.m_labelStyle.m_vertical = true;
}
/// `box`: the number of the first text's box.
Lines frontCalls(int box, bool labelStyle) {
    Lines lines = Lines{R"(CBaseChart_addText(BaseChart#1, 0, 0, "", "gulim.ttc", 12, 0, 5, 0, false))"} +
                  boxCalls(box, "0x00ffffff, 0xff000000, 0", "0, false") +
                  Lines{"CBaseChart_addText(BaseChart#1, 3, -4, \"Stra\xc3\x9f"
                        "e\", \"t.ttf\", 8.5, 0x00010203, 9, 0, false)"} +
                  boxCalls(box + 1, "0x00040506, 0x00070809, 2", "30, true") +
                  Lines{"CBaseMeter_addPointer(BaseMeter#1, 0, 0, 0)",
                        "CMeterPointer_setShape(MeterPointer#1, 0, 1, 1)",
                        "CBaseMeter_addPointer(BaseMeter#1, 1e+09, 0x00112233, 0x00445566)",
                        "CMeterPointer_setShape(MeterPointer#2, 5, 0.5, 2)"};
    if (!labelStyle)
        return lines;
    Lines dressed = boxCalls(box + 2, "0xff000000, 153, -1", "45, true");
    dressed.insert(dressed.begin() + 1, R"(CBaseChart_patternColor2(BaseChart#1, "p.png", 0, 0))");
    return lines + Lines{R"(CBaseMeter_setLabelStyle(BaseMeter#1, "l.ttf", 9, 0x00223344, 0))"} + dressed;
}

const Case angularCases[] = {
    {"Defaults", [](PreviewFake&) {}, [](Sections&) {}},
    {"Layout",
     [](PreviewFake& view) {
         view.m_ownLayout.SetChartSize(100, 90);
         view.m_ownLayout.m_showLegend = false;
         CAngularMeterPA& area = view.m_ownLayout.m_angularPlotArea;
         area.m_centerX = 1;
         area.m_centerY = 2;
         area.m_radius = 3;
         area.m_startAngle = 4;
         area.m_endAngle = 5.5;
         view.m_ownLayout.m_titles.push_back(CChartTitle());
         view.m_ownLayout.m_titles[0].m_show = true;
     },
     [](Sections& calls) {
         calls["create"][0] = "CAngularMeter_create(100, 90, 0xffff0000, 0xff000000, 0)";
         calls["place"] = {"CAngularMeter_setMeter(AngularMeter#1, 1, 2, 3, 4, 5.5)"};
         calls["legend"] =
             Lines{
                 R"(CBaseChart_addTitle2(BaseChart#1, 8, "", "gulim.ttc", 12, 0, 0xff000000, 0xff000000))"} +
             boxCalls(1, "-1, -1, 0", "0, false");
     }},
    {"Scale", [](PreviewFake& view) { editScale(view.m_ownAngularMeter); },
     [](Sections& calls) { calls["scale"] = kScale; }},
    {"RingsAndZones",
     [](PreviewFake& view) {
         CAngularMeter& meter = view.m_ownAngularMeter;
         meter.m_rings.push_back(CAngularRing());
         meter.m_rings.push_back(CAngularRing());
         meter.m_rings[1].m_startRadius = 190;
         meter.m_rings[1].m_endRadius = 200;
         meter.m_rings[1].m_fillColor.m_color = 0x112233;
         meter.m_rings[1].m_edgeColor.m_color = 0x445566;
         meter.m_zones.push_back(CMeterZoneAngular());
         meter.m_zones.push_back(CMeterZoneAngular());
         meter.m_zones[1].m_startValue = 60.5;
         meter.m_zones[1].m_endValue = 20;
         meter.m_zones[1].m_fillColor.m_color = 0x778899;
         meter.m_zones[1].m_edgeColor.m_color = 0xffffffff;
     },
     [](Sections& calls) {
         calls["rings"] = {"CAngularMeter_addRing(AngularMeter#1, 0, 0, 0x0066ff66, 0x0066ff66)",
                           "CAngularMeter_addRing(AngularMeter#1, 190, 200, 0x00112233, 0x00445566)"};
         calls["zones"] = {"CAngularMeter_addZone2(AngularMeter#1, 0, 0, 0x0066ff66, 0x0066ff66)",
                           "CAngularMeter_addZone2(AngularMeter#1, 60.5, 20, 0x00778899, -1)"};
     }},
    {"Front", [](PreviewFake& view) { editFront(view.m_ownAngularMeter); },
     [](Sections& calls) { calls["front"] = frontCalls(2, false); }},
    {"LabelStyle",
     [](PreviewFake& view) {
         editFront(view.m_ownAngularMeter);
         view.m_ownAngularMeter.m_useLabelStyle = true;
     },
     [](Sections& calls) { calls["front"] = frontCalls(2, true); }},
};

const Case linearCases[] = {
    {"Defaults", [](PreviewFake&) {}, [](Sections&) {}},
    {"Layout",
     [](PreviewFake& view) {
         CLinearMeterPA& area = view.m_ownLayout.m_linearPlotArea;
         area.m_left = 1;
         area.m_top = 2;
         area.m_width = 3;
         area.m_height = 4;
         area.m_axisPos = 8;
         area.m_reverse = true;
     },
     [](Sections& calls) { calls["place"] = {"CLinearMeter_setMeter(LinearMeter#1, 1, 2, 3, 4, 8, true)"}; }},
    {"Scale", [](PreviewFake& view) { editScale(view.m_ownLinearMeter); },
     [](Sections& calls) { calls["scale"] = kScale; }},
    {"Zones",
     [](PreviewFake& view) {
         CMeterZoneLinears& zones = view.m_ownLinearMeter.m_zones;
         zones.push_back(CMeterZoneLinear());
         zones.push_back(CMeterZoneLinear());
         CMeterZoneLinear& zone = zones[1];
         zone.m_startValue = 60.5;
         zone.m_endValue = 20;
         zone.m_text = "Gr\xc3\xbcn";
         zone.m_font.m_fileName = "z.ttf";
         zone.m_font.m_size = 7;
         zone.m_fontColor.m_color = 0x112233;
         zone.m_backColor.m_color = 0x445566;
         zone.m_edgeColor.m_color = 0x778899;
         zone.m_effect.m_value = 3;
         zone.m_alignment = 1; // not read
         zone.m_angle = 90;
         zone.m_vertical = true;
     },
     [](Sections& calls) {
         calls["zones"] =
             Lines{R"(CLinearMeter_addZone(LinearMeter#1, 0, 0, 0x0066ff66, ""))"} +
             boxCalls(2, "0x0066ff66, 0x0066ff66, 0", "0, false") +
             Lines{R"(CTextBox_setFontStyle(TextBox#2, "gulim.ttc", 0))",
                   "CTextBox_setFontSize(TextBox#2, 12, 0)", "CTextBox_setFontColor(TextBox#2, 0)",
                   "CLinearMeter_addZone(LinearMeter#1, 60.5, 20, 0x00445566, \"Gr\xc3\xbcn\")"} +
             boxCalls(3, "0x00445566, 0x00778899, 3", "90, true") +
             Lines{R"(CTextBox_setFontStyle(TextBox#3, "z.ttf", 0))", "CTextBox_setFontSize(TextBox#3, 7, 0)",
                   "CTextBox_setFontColor(TextBox#3, 0x00112233)"};
     }},
    {"Front", [](PreviewFake& view) { editFront(view.m_ownLinearMeter); },
     [](Sections& calls) { calls["front"] = frontCalls(2, false); }},
    {"LabelStyle",
     [](PreviewFake& view) {
         editFront(view.m_ownLinearMeter);
         view.m_ownLinearMeter.m_useLabelStyle = true;
     },
     [](Sections& calls) { calls["front"] = frontCalls(2, true); }},
};

void expectCalls(const Case& test, void (*routine)(CChartPreview&), Sections calls) {
    PreviewFake view;
    test.edit(view);
    test.expect(calls);
    EXPECT_EQ(drawnBy(routine, view), calls.All());
}

class AngularBranches : public testing::TestWithParam<Case> {};
TEST_P(AngularBranches, MakeTheCallsInOrder) {
    expectCalls(GetParam(), DrawAngularMeter, angularCalls());
}
class LinearBranches : public testing::TestWithParam<Case> {};
TEST_P(LinearBranches, MakeTheCallsInOrder) {
    expectCalls(GetParam(), DrawLinearMeter, linearCalls());
}

const auto nameOf = [](const auto& test) { return test.param.name; };
INSTANTIATE_TEST_SUITE_P(Meter, AngularBranches, testing::ValuesIn(angularCases), nameOf);
INSTANTIATE_TEST_SUITE_P(Meter, LinearBranches, testing::ValuesIn(linearCases), nameOf);

} // namespace
