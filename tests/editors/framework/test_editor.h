#pragma once
// A small editor with every kind of row: a page of plain values, a page with a list, fields and a preview.

#include "editors/fields/color_field.h"
#include "editors/fields/effect_field.h"
#include "editors/fields/font_field.h"
#include "editors/fields/image_field.h"
#include "editors/framework/form.h"
#include "editors/framework/page_tabs.h"
#include "editors/preview/chart_preview_view.h"
#include "tests/driver/person.h"

struct Values {
    std::int32_t m_floored = 5;
    std::int32_t m_free = -7;
    std::int32_t m_percent = 50;
    double m_real = 1.23456;
    double m_whole = 1.23456;
    double m_share = 0.5;
    double m_quiet = 10;
    bool m_on = true;
    bool m_notLoaded = true;
    std::int32_t m_code = 3;
    std::int32_t m_alignment = 5;
    std::int32_t m_side = 8;
    bool m_flag = true;
    CChartString m_text;
    CChartString m_lines;
};

class CValuesPage : public CDialog {
public:
    CValuesPage(Values& values, QWidget& owner) : m_form(*this, owner) {
        m_form.Group("Numbers:");
        m_form.Integer("Floored:", values.m_floored).Step(10).Floor(0);
        m_form.Integer("Free:", values.m_free);
        m_form.Integer("Percent:", values.m_percent).Step(10).Range(0, 100).DigitsOnly();
        m_form.Real("Real:", values.m_real).Step(10);
        m_form.Real("Whole:", values.m_whole).Unrounded();
        m_form.Real("Share:", values.m_share).Step(0.1).Range(0, 1);
        m_form.Real("Quiet:", values.m_quiet).QuietOnLeave();
        m_form.Column();
        m_form.Group("Choices:");
        m_form.Check("On", values.m_on);
        m_form.Check("Not Loaded", values.m_notLoaded).NotLoaded();
        m_form.Combo("Code:", values.m_code, {{"Overlay", 0}, {"Stack", 1}, {"Side", 3}}).Otherwise(2);
        m_form.Alignment("Alignment:", values.m_alignment);
        m_form.Side("Side:", values.m_side);
        m_form.Radio(values.m_flag, {{"Ring", 1}, {"Sector", 0}});
        m_form.EndGroup();
        m_form.Text("Text:", values.m_text);
        m_formats = &m_form.Formats("Format:", {"{dataSetName}", "{value}", "{percent}%"});
        m_formats->For(m_form.Lines("Label:", values.m_lines));
    }
    CForm& Form() { return m_form; }
    CFormatRow& Formats() { return *m_formats; }

private:
    CForm m_form;
    CFormatRow* m_formats;
};

class CItemsPage : public CDialog {
public:
    CItemsPage(CChartLayout& layout, QWidget& owner) : m_form(*this, owner) {
        auto& titles = m_form.List(layout.m_titles, "Title %d ( %s )", "Select anyone.").New([] {
            CChartTitle title;
            title.m_x = 42;
            return title;
        });
        m_form.Lines("Title:", titles.Caption(&CChartTitle::m_text));
        m_form.Check("Show Title", titles[&CChartTitle::m_show]);
        m_form.Alignment("Alignment:", titles[&CChartTitle::m_alignment]);
        m_form.Group("Position:");
        m_form.Integer("X:", titles[&CChartTitle::m_x]).Step(10);
        m_form.Group("Angle:");
        m_form.Real(nullptr, titles[&CChartTitle::m_angle]).Step(10);
        m_form.Column();
        m_form.Group("Font:");
        m_form.Field<CChartFontField>(nullptr, titles[&CChartTitle::m_font]);
        m_form.Field<CChartColorField>("FontColor:", titles[&CChartTitle::m_fontColor]);
        m_form.Field<CChartColorField>("BackColor:", titles[&CChartTitle::m_backColor]).OnlyWithItem();
        m_form.Group("Effect:");
        m_form.Field<CRaisedEffectField>(nullptr, titles[&CChartTitle::m_effect]);
        m_form.Group("WallPaper:");
        m_form.Check("WallPaper", layout.m_useWallPaper);
        m_form.Field<CChartImageField>(nullptr, layout.m_wallPaperImage);
    }
    CForm& Form() { return m_form; }

private:
    CForm m_form;
};

class CTestEditor : public CDialog {
public:
    CTestEditor()
        : CDialog(QStringLiteral("Test")), m_tabs(*this), m_valuesPage(m_values, *this),
          m_itemsPage(m_preview.m_ownLayout, *this) {
        CChartLayout layout;
        layout.m_titles = CChartTitles();
        m_preview.SetLayout(layout);
        m_tabs.AttachPage(m_valuesPage, QStringLiteral("Values"));
        m_tabs.AttachPage(m_itemsPage, QStringLiteral("Items"));
    }
    void AddTitle(const char* text) {
        CChartTitle title;
        title.m_text = text;
        title.m_x = 100 + Titles().size();
        Titles().push_back(title);
    }
    CChartTitles& Titles() { return m_preview.m_ownLayout.m_titles; }

    /// Opens the editor as DoModal does, but without its loop.
    void Open() {
        OnInitDialog();
        show();
        activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(this));
    }
    int Told() { return std::exchange(m_told, 0); }

    Values m_values;
    CChartPreviewView m_preview;
    CPageTabs m_tabs;
    CValuesPage m_valuesPage;
    CItemsPage m_itemsPage;

protected:
    bool OnInitDialog() override {
        m_tabs.Open({.preview = &m_preview});
        return CDialog::OnInitDialog();
    }
    void OnFieldChanged(int key) override {
        EXPECT_EQ(key, 0);
        ++m_told;
        m_preview.RefreshPreview();
    }

private:
    int m_told = 0;
};

class EditorTest : public WidgetTest {
protected:
    void Open() {
        editor.Open();
        editor.Told();
    }
    void OpenItems() {
        Open();
        editor.m_tabs.ShowPage(1);
    }

    CTestEditor editor;
    Person person{editor};
    Values& values = editor.m_values;
};
