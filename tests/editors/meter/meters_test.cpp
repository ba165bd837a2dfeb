// The two meter editors: their controls, one row each, and what "Add" appends.

#include "tests/driver/manners.h"

using namespace driver;

namespace {
template <class Styled> void GiveLook(Styled& styled) {
    styled.m_fontColor.m_color = 0x993300;
    styled.m_backColor.m_color = 0x99CCFF;
    styled.m_edgeColor.m_color = 0x336699;
    styled.m_effect.m_effectType = 1; // soft lighting
    styled.m_effect.m_value = 5;
}

template <class Meter> Meter StartMeter() {
    Meter meter;
    CMeterPointer pointer;
    pointer.m_value = 40;
    pointer.m_fillColor.m_color = 0xCC3300;
    pointer.m_shape = 2;
    meter.m_pointers.push_back(pointer);
    CChartTextBox text;
    text.m_text = "km/h\nof this car";
    text.m_x = 120;
    text.m_y = 130;
    GiveLook(text);
    meter.m_texts.push_back(text);
    meter.m_useLabelStyle = true;
    GiveLook(meter.m_labelStyle);
    return meter;
}

CAngularMeter StartAngular() {
    auto meter = StartMeter<CAngularMeter>();
    meter.m_axisWidth = 2;
    CAngularRing ring;
    ring.m_startRadius = 150;
    ring.m_endRadius = 160;
    ring.m_edgeColor.m_color = 0x996633;
    meter.m_rings.push_back(ring);
    CMeterZoneAngular zone;
    zone.m_startValue = 20;
    zone.m_endValue = 60;
    zone.m_edgeColor.m_color = 0x996633;
    meter.m_zones.push_back(zone);
    return meter;
}

CLinearMeter StartLinear() {
    auto meter = StartMeter<CLinearMeter>();
    CMeterZoneLinear zone;
    zone.m_text = "warm";
    zone.m_startValue = 20;
    zone.m_endValue = 60;
    zone.m_alignment = 4;
    GiveLook(zone);
    meter.m_zones.push_back(zone);
    return meter;
}

Properties GeneralRows() {
    const std::string tab = "General";
    return {
        {tab, "LineWidth", "MajorTickWidth:", "4", "majorTickWidth=4", {1, 0}},
        {tab, "LineWidth", "MinorTickWidth:", "3", "minorTickWidth=3", {1, 0}},
        {tab, "LineWidth", "MicroTickWidth:", "2", "microTickWidth=2", {1, 0}},
        {tab, "Scale", "LowerLimit:", "-12.5", "lowerLimit=-12.5", {10}},
        {tab, "Scale", "UpperLimit:", "250", "upperLimit=250", {10}},
        {tab, "Scale", "MajorTickInc:", "20", "majorTickInc=20", {10}},
        {tab, "Scale", "MinorTickInc:", "2.5", "minorTickInc=2.5", {5}},
        {tab, "Scale", "MicroTickInc:", "0.503", "microTickInc=0.5", {1}},
    };
}

Properties PointerRows(const char* fillLabel) {
    return {
        {"Pointer", "", "Value:", "33.25", "pointers[0].value=33.25"},
        {"Pointer", "", fillLabel, "Metal", "pointers[0].fillColor.type=metal"},
        {"Pointer", "", "EdgeColor:", "Metal", "pointers[0].edgeColor.type=metal"},
        {"Pointer",
         "Shape:", "Type:", "DiamondPointer|TriangularPointer|ArrowPointer|ArrowPointer2|LinePointer|PencilPointer",
         "pointers[0].shape=pencil"},
        {"Pointer", "Shape:", "LengthRatio:", "0.6", "pointers[0].lengthRatio=0.6", {0.1}},
        {"Pointer", "Shape:", "WidthRatio:", "2.5", "pointers[0].widthRatio=2.5", {0.1}},
    };
}

Properties TextRows() {
    return Properties{{"Text", "", "Text:", "new", "texts[0].text=new"},
                      {"Text", "", "Alignment:", kAlignments, "texts[0].alignment=bottomRight2"},
                      {"Text", "Angle:", "", "45", "texts[0].angle=45", {10}},
                      {"Text", "Angle:", "Vertical", "", "texts[0].vertical=true"},
                      {"Text", "Position:", "X:", "77", "texts[0].x=77", {10}},
                      {"Text", "Position:", "Y:", "-3", "texts[0].y=-3", {10}}} +
           LookRows("Text", "texts[0].");
}

Properties LabelRows() {
    return Properties{{"Label", "", "Use LabelStyle", "", "useLabelStyle=false"},
                      {"Label", "Font:", "", "31", "labelStyle.font.size=31"},
                      {"Label", "Angle:", "", "45", "labelStyle.angle=45", {10}},
                      {"Label", "Angle:", "Vertical", "", "labelStyle.vertical=true"}} +
           ColorRows("Label", "Font:", "labelStyle.", {"fontColor"}) + EffectRows("Label", "labelStyle.") +
           ColorRows("Label", "", "labelStyle.", {"backColor", "edgeColor"});
}

const Properties kAngularRows = Properties{{"General", "LineWidth", "AxisWidth:", "6", "axisWidth=6", {1, 0}},
                                           {"Ring", "", "StartRadius:", "111", "rings[0].startRadius=111", {10, 0}},
                                           {"Ring", "", "EndRadius:", "199", "rings[0].endRadius=199", {10, 0}},
                                           {"Zone", "", "StartValue:", "-5.5", "zones[0].startValue=-5.5", {10}},
                                           {"Zone", "", "EndValue:", "77", "zones[0].endValue=77", {10}}} +
                                GeneralRows() + PointerRows("FillColor:") + TextRows() + LabelRows() +
                                ColorRows("Ring", "", "rings[0].", {"fillColor", "edgeColor"}) +
                                ColorRows("Zone", "", "zones[0].", {"fillColor", "edgeColor"});

const Properties kLinearRows =
    Properties{{"Zone", "", "Text:", "hot", "zones[0].text=hot"},
               {"Zone", "", "Alignment:", kAlignments, "zones[0].alignment=bottomRight2", {}, false},
               {"Zone", "Angle:", "", "45", "zones[0].angle=45", {10}},
               {"Zone", "Angle:", "Vertical", "", "zones[0].vertical=true"},
               {"Zone", "", "StartValue:", "-5.5", "zones[0].startValue=-5.5", {10}},
               {"Zone", "", "EndValue:", "77", "zones[0].endValue=77", {10}}} +
    LookRows("Zone", "zones[0].") + GeneralRows() + PointerRows("Fill Color:") + TextRows() + LabelRows();

void AddOn(const Person& person, const char* tab, const char* list, const char* row) {
    person.Tab(tab);
    ExpectBox("Warning", "Select anyone.", [&] { person.Click("Delete"); });
    person.Click("Add");
    EXPECT_EQ(person.Rows(list), QStringList({row}));
}
} // namespace

TEST(AngularMeterEditor, EachControlReachesItsField) {
    TestProperties(StartAngular(), CChartLayout(), kAngularRows);
    TestTableIsWhole(StartAngular(), CChartLayout(), kAngularRows);
}

TEST(LinearMeterEditor, EachControlReachesItsField) {
    TestProperties(StartLinear(), CChartLayout(), kLinearRows);
    TestTableIsWhole(StartLinear(), CChartLayout(), kLinearRows);
}

TEST(AngularMeterEditor, KeepsItsManners) {
    TestEditor("AngularMeter", {"General", "Pointer", "Ring", "Zone", "Text", "Label"}, StartAngular(), CChartLayout(),
               kAngularRows);
}

TEST(LinearMeterEditor, KeepsItsManners) {
    TestEditor("LinearMeter", {"General", "Pointer", "Zone", "Text", "Label"}, StartLinear(), CChartLayout(),
               kLinearRows);
}

TEST(AngularMeterEditor, AddAppendsWhatTheMeterSuggests) {
    CAngularMeter meter;
    CAngularMeter expected;
    expected.m_pointers.push_back(CMeterPointer());
    expected.m_rings.push_back(CAngularRing());
    expected.m_zones.push_back(CMeterZoneAngular());
    CChartTextBox text;
    text.m_x = 250;
    text.m_y = 275;
    text.m_alignment = 5;
    expected.m_texts.push_back(text);
    EXPECT_TRUE(Edit(meter, [](const Person& person) {
        AddOn(person, "Pointer", "Pointers", "Pointer 1");
        AddOn(person, "Ring", "Rings", "Ring 1");
        AddOn(person, "Zone", "Zones", "Zone 1");
        AddOn(person, "Text", "Texts", "Text 1 (  )");
        EXPECT_EQ(person.TextOf("X"), "250");
        person.Ok();
    }));
    EXPECT_EQ(Difference(expected, meter), "");
}

TEST(LinearMeterEditor, AddAppendsWhatTheMeterSuggests) {
    CLinearMeter meter;
    meter.m_axisWidth = 7; // the editor has no control for it
    CLinearMeter expected(meter);
    CMeterPointer pointer;
    pointer.m_shape = 5;
    pointer.m_lengthRatio = 0.75;
    expected.m_pointers.push_back(pointer);
    expected.m_zones.push_back(CMeterZoneLinear());
    CChartTextBox text;
    text.m_x = 225;
    text.m_y = 75;
    text.m_alignment = 5;
    expected.m_texts.push_back(text);
    EXPECT_TRUE(Edit(meter, [](const Person& person) {
        AddOn(person, "Pointer", "Pointers", "Pointer 1");
        AddOn(person, "Zone", "Zones", "Zone 1 (  )");
        AddOn(person, "Text", "Texts", "Text 1 (  )");
        person.Ok();
    }));
    EXPECT_EQ(Difference(expected, meter), "");
}
