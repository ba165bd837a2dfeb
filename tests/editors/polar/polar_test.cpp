// The polar editor: its controls, one row each, and what its layer dialog does beyond them.

#include "tests/driver/manners.h"

using namespace driver;

namespace {
/// A chart that shows nearly every property: either the scale and alternating backgrounds, or labels.
CPolarChart StartPolar(bool labels) {
    CPolarChart chart;
    chart.m_useLinearScale = !labels;
    chart.m_minorTickInc = 10;
    chart.m_useAltBgColor = chart.m_altBgRing = !labels;
    chart.m_edgeColor.m_color = 0x993300;
    chart.m_showAngularLabels = chart.m_useAngularLabelStyle = chart.m_useRadialLabelStyle = labels;
    for (const char* text : {"one\nof two lines", "two", "three"}) {
        CChartString label;
        label = text;
        chart.m_angularLabels.push_back(label);
    }
    chart.m_backColor.m_color = 0xffffcc;
    const auto paint = [](auto& style) {
        style.m_fontColor.m_color = 0x996633;
        style.m_backColor.m_color = 0x99ccff;
        style.m_edgeColor.m_color = 0x993366;
        style.m_effect.m_effectType = 1;
        style.m_effect.m_value = 4;
    };
    paint(chart.m_angularLabelStyle);
    paint(chart.m_radialLabelStyle);
    for (CMeterZoneAngulars* zones : {&chart.m_angularZones, &chart.m_radialZones}) {
        CMeterZoneAngular zone;
        zone.m_startValue = 20;
        zone.m_endValue = 60;
        zone.m_fillColor.m_color = 0x8066ff66;
        zones->push_back(zone);
    }
    CPolarLayer* layer = CPolarLayerMgr::CreateLayer(0);
    layer->m_seed = 5;
    layer->m_symbolType = 1;
    chart.m_layers.AddLayer(layer);
    return chart;
}

const char* const kLayer = "General>Layer[0]>Modify...";

const Properties kScaleRows = {
    {"General", "Style:", "PolygonGrid", "", "polygonGrid=true"},
    {"General", "Style:", "Grid On Top", "", "gridOnTop=false"},
    {"General", "AngularAxis:", "Use LinearScale", "", "useLinearScale=false"},
    {"General", "AngularAxis:", "LowerLimit:", "-30.504", "lowerLimit=-30.5", {10}},
    {"General", "AngularAxis:", "UpperLimit:", "200", "upperLimit=200", {10}},
    {"General", "AngularAxis:", "MajorTickInc:", "45", "majorTickInc=45", {10}},
    {"General", "AngularAxis:", "MinorTickInc:", "15", "minorTickInc=15", {5}},
    {"General", "AltBgColor:", "Use AltBgColor", "", "useAltBgColor=false"},
    {"General", "AltBgColor:", "Color1:", "Metal", "bgColor1.type=metal"},
    {"General", "AltBgColor:", "Color2:", "Metal", "bgColor2.type=metal"},
    {"General", "AltBgColor:", "Sector", "", "altBgRing=false"},
    {"General", "Edge:", "Width:", "5", "edgeWidth=5", {1, 0}},
    {"General", "Edge:", "Color:", "Metal", "edgeColor.type=metal"},
    {"General", "RadialGrid:", "Width:", "3", "radialGridWidth=3", {1, 0}},
    {"General", "RadialGrid:", "Color:", "Metal", "radialGridColor.type=metal"},
    {"General", "AngularGrid:", "Width:", "3", "angularGridWidth=3", {1, 0}},
    {"General", "AngularGrid:", "Color:", "Metal", "angularGridColor.type=metal"},
    {kLayer, "", "Type:", "Line|Spline|Area|SplineArea", "layers[0]"},
    {kLayer, "", "Name:", "Fish", "layers[0].name=Fish"},
    {kLayer, "", "Color:", "Metal", "layers[0].color.type=metal"},
    {kLayer, "", "LineWidth:", "7", "layers[0].lineWidth=7", {1, 0}},
    {kLayer, "", "Close Loop", "", "layers[0].closeLoop=true"},
    {kLayer, "Symbol:", "Symbol Type:",
     "NoShape|SquareShape|DiamondShape|TriangleShape|RightTriangleShape|LeftTriangleShape|"
     "InvertedTriangleShape|"
     "CircleShape|CircleShapeNoShading",
     "layers[0].symbolType=cross"},
    {kLayer, "Symbol:", "Fill Color:", "Metal", "layers[0].fillColor.type=metal"},
    {kLayer, "Symbol:", "Edge Color:", "Metal", "layers[0].edgeColor.type=metal"},
    {kLayer, "Symbol:", "Use SymbolScale", "", "layers[0].useSymbolScale=true"},
    {kLayer, "Symbol:", "Size:", "20", "layers[0].symbolSize=20", {1, 0}},
};

/// A list of zones; a radial zone has no edge.
Properties ZoneRows(const char* place, const std::string& path, bool edgeSeen) {
    return {{place, "", "StartValue:", "40.456", path + ".startValue=40.46", {10}},
            {place, "", "EndValue:", "90", path + ".endValue=90", {10}},
            {place, "", "FillColor:", "Metal", path + ".fillColor.type=metal"},
            {place, "", "EdgeColor:", "Metal", path + ".edgeColor.type=metal", {}, edgeSeen}};
}

const char* const kAround = "Label (Angular)";
const char* const kAlong = "Label (Radial)";

/// Letters are of one colour: metal looks as its own.
Properties PlainLetters(Properties rows) {
    for (Property& row : rows) row.seen = row.seen && row.label != "FontColor:";
    return rows;
}

const Properties kLabelRows = PlainLetters(
    Properties{{"General", "", "BackColor:", "Metal", "backColor.type=metal"},
               {"General", "AltBgColor:", "Ring", "", "altBgRing=true", {}, false},
               {kAround, "", "Show Labels", "", "showAngularLabels=false"},
               {kAround, "", "Text:", "West", "angularLabels[0]=West"},
               {kAround, "", "Use LabelStyle", "", "useAngularLabelStyle=false"},
               {kAround, "", "Alignment:", kAlignments, "angularLabelStyle.alignment=bottomRight2", {}, false},
               {kAround, "Angle:", "", "33", "angularLabelStyle.angle=33", {10}},
               {kAround, "Angle:", "Vertical", "", "angularLabelStyle.vertical=true"}} +
    LookRows(kAround, "angularLabelStyle.") +
    Properties{{kAlong, "", "Use LabelStyle", "", "useRadialLabelStyle=false"},
               {kAlong, "Font:", "", "31", "radialLabelStyle.font.size=31"},
               {kAlong, "Angle:", "", "33", "radialLabelStyle.angle=33", {10}},
               {kAlong, "Angle:", "Vertical", "", "radialLabelStyle.vertical=true"}} +
    ColorRows(kAlong, "Font:", "radialLabelStyle.", {"fontColor"}) + EffectRows(kAlong, "radialLabelStyle.") +
    ColorRows(kAlong, "", "radialLabelStyle.", {"backColor", "edgeColor"}) +
    ZoneRows("Zone (Angular)", "angularZones[0]", true) + ZoneRows("Zone (Radial)", "radialZones[0]", false));
} // namespace

TEST(PolarEditor, EachControlReachesItsField) {
    TestProperties(StartPolar(false), CChartLayout(), kScaleRows);
    TestProperties(StartPolar(true), CChartLayout(), kLabelRows);
    TestTableIsWhole(StartPolar(true), CChartLayout(), kScaleRows + kLabelRows);
}

TEST(PolarEditor, KeepsItsWordWhateverIsDone) {
    TestEditor("PolarChart", {"General", "Label (Angular)", "Label (Radial)", "Zone (Angular)", "Zone (Radial)"},
               StartPolar(true), CChartLayout(), kLabelRows);
}

TEST(PolarEditor, ListsLayersByNumberKindAndName) {
    CPolarChart chart;
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        for (const char* button : {"Delete", "Modify..."})
            ExpectBox("Warning", "Select anyone.", [&] { person.Click(person.Button("Layer:", button)); });
        for (const int kind : {0, 3})
            person.In(person.Button("Layer:", "Add..."), [&](Person& layer) {
                EXPECT_EQ(layer.Window().windowTitle(), "Layer for PolarChart");
                layer.Choose("Type", kind);
                layer.Give("Name", kind == 0 ? "" : "Fish");
                layer.Ok();
            });
        person.In(person.Button("Layer:", "Add..."), [](Person& layer) { layer.Cancel(); });
        EXPECT_EQ(person.Rows("Layer"), QStringList({"Layer 1 ( Line )", "Layer 2 ( SplineArea ) : (\"Fish\")"}));
        EXPECT_EQ(person.List("Layer").currentRow(), 1);
        person.Select("Layer", 0);
        person.Click(person.Button("Layer:", "Delete"));
        EXPECT_EQ(person.Rows("Layer"), QStringList({"Layer 1 ( SplineArea ) : (\"Fish\")"}));
        person.Ok();
    }));
    ASSERT_EQ(chart.m_layers.GetLayerCount(), 1);
    EXPECT_EQ(chart.m_layers.GetLayer(0)->GetType(), 3);
}

TEST(PolarEditor, WithoutLabelsKeepsTheirLooks) {
    CPolarChart chart = StartPolar(true);
    EXPECT_TRUE(Edit(chart, [](Person& person) {
        person.Tab(kAround);
        EXPECT_EQ(person.Rows("Labels").value(0), "Label 1 ( one... )");
        for (int i = 0; i < 3; ++i) person.Click("Delete");
        EXPECT_EQ(person.Find<QPlainTextEdit>("Text").toPlainText(), "");
        person.Ok();
    }));
    EXPECT_TRUE(chart.m_angularLabels.empty());
    EXPECT_EQ(chart.m_angularLabelStyle.m_backColor.m_color, 0x99ccffU);
}

/// Opens the dialog of the only layer, of that kind, and acts in it.
CPolarLayer& edited(CPolarChart& chart, int kind, const std::function<void(Person&)>& act) {
    CPolarLayer* layer = CPolarLayerMgr::CreateLayer(kind);
    layer->m_name = "mine";
    chart.m_layers.AddLayer(layer);
    EXPECT_TRUE(Edit(chart, [&](Person& person) {
        Go(person, "Layer[0]>Modify...", act);
        person.Ok();
    }));
    return *chart.m_layers.GetLayer(0);
}

TEST(PolarLayer, KeepsALayerOfEachKind) {
    CPolarChart chart;
    const CPolarLayer& layer = edited(chart, 0, [](Person& person) {
        person.Give("LineWidth", "9");
        person.Choose("Type", 1); // shows a layer of its own
        EXPECT_EQS((person.Find<QLineEdit>("Name").text(), ""), (person.TextOf("LineWidth"), "2"));
        person.Give("Name", "other");
        person.Choose("Type", 2); // a kind without these: grey, with their last values
        EXPECT_EQS((person.Find("LineWidth").isEnabled(), false), (person.Find("Close Loop").isEnabled(), false),
                   (person.TextOf("LineWidth"), "2"));
        person.Choose("Type", 0);
        EXPECT_TRUE(person.Find("Close Loop").isEnabled());
        EXPECT_EQ(person.Find<QLineEdit>("Name").text(), "mine");
    });
    EXPECT_STREQ(layer.m_name.data(), "mine");
    EXPECT_EQ(layer.m_lineWidth, 9);
}

TEST(PolarLayer, PresetsMakeItALineOfSymbols) {
    for (const bool bubbles : {false, true}) {
        CPolarChart chart;
        const CPolarLayer& layer = edited(chart, 2, [&](Person& person) {
            person.Click(person.Button("Preset:", bubbles ? "Bubble" : "Scatter"));
            EXPECT_EQS((person.Find<QComboBox>("Type").currentText(), "Line"), (person.TextOf("LineWidth"), "0"),
                       (person.Find("LineWidth").isEnabled(), true));
        });
        EXPECT_EQS((layer.GetType(), 0), (layer.m_lineWidth, 0), (layer.m_symbolType, bubbles ? 7 : 2),
                   (layer.m_useSymbolScale, bubbles));
    }
}
