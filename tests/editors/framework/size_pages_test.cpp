#include "editors/layout/size_pages.h"
#include "tests/editors/framework/test_editor.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QVBoxLayout>

namespace {

/// A number of a page: its label and where the layout keeps it.
struct Number {
    const char* label;
    std::function<double(const CChartLayout&)> stored;
    bool floored;
    bool quiet = false;
};

template <class Page>
class Hosted : public CDialog {
public:
    Hosted() : m_page(m_layout, *this) {
        m_page.Create(this);
        auto* room = new QVBoxLayout(this);
        room->addWidget(&m_page);
        room->addWidget(MakeOkCancel());
        show();
        activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }
    CChartLayout m_layout;
    Page m_page;
    int m_told = 0;

protected:
    void OnFieldChanged(int /*key*/) override { ++m_told; }
};

class SizePages : public EditorTest {
protected:
    template <class Page>
    void Check(const char* group, const std::vector<Number>& numbers) {
        SCOPED_TRACE(group);
        Hosted<Page> host;
        const Person user(host);
        EXPECT_EQ(host.template findChild<QGroupBox*>()->title(), group);
        EXPECT_EQ(host.template findChildren<QAbstractSpinBox*>().size(), std::ssize(numbers));
        for (const Number& number : numbers) {
            SCOPED_TRACE(number.label);
            EXPECT_EQ(user.TextOf(number.label).toDouble(), number.stored(host.m_layout));
            user.Give(number.label, "35");
            EXPECT_EQ(number.stored(host.m_layout), 35);
            EXPECT_EQ(host.m_told, number.quiet ? 0 : 1);
            user.Press(number.label, true);
            EXPECT_EQ(number.stored(host.m_layout), 45);
            user.Give(number.label, "5");
            user.Press(number.label, false);
            EXPECT_EQ(number.stored(host.m_layout), number.floored ? 0 : -5);
            user.Give(number.label, "-12");
            EXPECT_EQ(number.stored(host.m_layout), number.floored ? 0 : -12);
            host.m_told = 0;
        }
    }
};

TEST_F(SizePages, EditTheirPlotAreas) {
    Check<CPieSizePage>("PieChart:", {{"Center X", [](auto& l) { return l.m_piePlotArea.m_centerX; }, false},
                                      {"Center Y", [](auto& l) { return l.m_piePlotArea.m_centerY; }, false},
                                      {"Radius", [](auto& l) { return l.m_piePlotArea.m_radius; }, true}});
    Check<CPolarSizePage>("PolarChart:",
                          {{"Center X", [](auto& l) { return l.m_polarPlotArea.m_centerX; }, false},
                           {"Center Y", [](auto& l) { return l.m_polarPlotArea.m_centerY; }, false},
                           {"Radius", [](auto& l) { return l.m_polarPlotArea.m_radius; }, true}});
    Check<CAngularSizePage>(
        "Angular Meter:",
        {{"CenterX", [](auto& l) { return l.m_angularPlotArea.m_centerX; }, false},
         {"CenterY", [](auto& l) { return l.m_angularPlotArea.m_centerY; }, false},
         {"Radius", [](auto& l) { return l.m_angularPlotArea.m_radius; }, true},
         {"StartAngle", [](auto& l) { return l.m_angularPlotArea.m_startAngle; }, false},
         {"EndAngle", [](auto& l) { return l.m_angularPlotArea.m_endAngle; }, false, true}});
    Check<CXYSizePage>("XYChart:", {{"Left", [](auto& l) { return l.m_xyPlotArea.m_left; }, false},
                                    {"Top", [](auto& l) { return l.m_xyPlotArea.m_top; }, false},
                                    {"Width", [](auto& l) { return l.m_xyPlotArea.m_width; }, true},
                                    {"Height", [](auto& l) { return l.m_xyPlotArea.m_height; }, true}});
    Check<CFinanceSizePage>("FinanceChart:", {{"Width", [](auto& l) { return l.m_financeWidth; }, true}});
    Check<CLinearSizePage>("Linear Meter:",
                           {{"Left", [](auto& l) { return l.m_linearPlotArea.m_left; }, false},
                            {"Top", [](auto& l) { return l.m_linearPlotArea.m_top; }, false},
                            {"Width", [](auto& l) { return l.m_linearPlotArea.m_width; }, true},
                            {"Height", [](auto& l) { return l.m_linearPlotArea.m_height; }, true}});
}

TEST_F(SizePages, TheLinearMeterHasASideAndADirection) {
    Hosted<CLinearSizePage> host;
    const Person user(host);
    CLinearMeterPA& area = host.m_layout.m_linearPlotArea;
    user.Choose("AxisPos", 2);
    EXPECT_EQ(area.m_axisPos, 8);
    area.m_reverse = true;
    EXPECT_TRUE(host.m_page.UpdateData(false));
    EXPECT_FALSE(user.Find<QCheckBox>("Reverse").isChecked());
    user.Click("Reverse");
    user.Click("Reverse");
    EXPECT_FALSE(area.m_reverse);
    EXPECT_EQ(host.m_told, 3);
}

} // namespace
