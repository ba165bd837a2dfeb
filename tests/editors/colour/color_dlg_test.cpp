#include "editors/colour/color_dlg.h"
#include "editors/colour/color_text.h"
#include "editors/colour/spectrum_ctrl.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/numeric_edit.h"
#include "tests/driver/person.h"
#include <QAbstractButton>
#include <QClipboard>

namespace {
class ColorDlg : public WidgetTest {
protected:
    ColorDlg() {
        for (CChartColor& color : CCustomColorCtrl::Colors()) {
            color = CChartColor();
            color.m_color = 0xFFFFFF;
        }
    }
    CNumericEdit* Number(const char* name) { return Find<CNumericEdit>(m_dialog, name); }
    void TypeInto(const char* name, const char* text) {
        Type(Number(name), text);
        QTest::keyClick(Number(name), Qt::Key_Return);
    }
    void Click(const char* button) { QTest::mouseClick(Find(m_dialog, button), Qt::LeftButton); }
    void ClickCell(const char* grid, GridShape shape, int index) {
        QWidget* widget = Find(m_dialog, grid);
        QTest::mouseClick(widget, Qt::LeftButton, {}, shape.CellRect(index, widget->size()).center());
    }
    void ClickPalette(int index) { ClickCell("Palette colors", {8, 5}, index); }
    void ClickCustom(int index) { ClickCell("CustomColors", {3, 6}, index); }
    void Choose(const char* combo, int row) {
        auto* box = Find<QComboBox>(m_dialog, combo);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int i = 0; i < row; ++i) QTest::keyClick(box, Qt::Key_Down);
    }
    void TypeAll(const char* red, const char* green, const char* blue, const char* alpha) {
        for (const auto& [name, text] : {std::pair("A", alpha), {"R", red}, {"G", green}, {"B", blue}})
            TypeInto(name, text);
    }
    std::string Numbers() {
        std::string all;
        for (const char* name : {"R", "G", "B", "A"}) all += Number(name)->Text().toStdString() + ' ';
        return all;
    }
    std::uint32_t Spectrum() { return Find<XColorSpectrumCtrl>(m_dialog, "ARGB")->GetRGB(); }
    std::uint32_t Sample() { return m_dialog.findChild<CChartPreviewView*>("Sample")->m_sampleColor.m_color; }

    CColorDlg m_dialog;
};
} // namespace

TEST_F(ColorDlg, ShowsEachTypeAndChangesNothingByItself) {
    for (const int type : {0, 1, 2, 3, -1, 99}) {
        CColorDlg dialog;
        dialog.m_color.m_type = type;
        dialog.m_color.m_color = 0x0A336699;
        dialog.m_color.m_direction = 33;
        dialog.m_color.m_patternFile = "a.png";
        const int result = RunModal(dialog, [&] {
            const bool numbers = type == 0 || type == 2;
            int shown = 0;
            for (const QWidget* edit : dialog.findChildren<CNumericEdit*>()) shown += edit->isVisible() ? 1 : 0;
            EXPECT_EQ(shown, numbers ? (type == 2 ? 5 : 4) : 0) << type;
            if (numbers)
                EXPECT_EQS(
                    (Find<CNumericEdit>(dialog, "R")->Text(), "51"), (Find<CNumericEdit>(dialog, "G")->Text(), "102"),
                    (Find<CNumericEdit>(dialog, "B")->Text(), "153"), (Find<CNumericEdit>(dialog, "A")->Text(), "10"),
                    (Find<XColorSpectrumCtrl>(dialog, "ARGB")->GetRGB(), 0x996633U));
            if (type == 1) EXPECT_EQ(Find<QLineEdit>(dialog, "Image")->text(), "a.png");
            QTest::mouseClick(Find(dialog, "OK"), Qt::LeftButton);
        });
        EXPECT_EQS((result, CDialog::kOK), (dialog.m_color.m_type, type), (dialog.m_color.m_color, 0x0A336699U),
                   (dialog.m_color.m_direction, 33));
        EXPECT_STREQ(dialog.m_color.m_patternFile.data(), "a.png");
    }
}

TEST_F(ColorDlg, ComposesTypedNumbers) {
    using Case = std::tuple<const char*, const char*, const char*, const char*, std::uint32_t>;
    const Case cases[] = {
        {"10", "20", "30", "254", 0xFE0A141E}, {"10", "20", "30", "255", 0xFF000000}, // fully transparent has one form
        {"10", "20", "30", "999", 0xFF000000}, {"300", "256", "255", "0", 0x00FFFFFF},
        {"0", "0", "-1", "0", 0xFFFFFFFF}, // numbers are not limited from below
    };
    RunModal(m_dialog, [&] {
        for (const auto& [red, green, blue, alpha, color] : cases) {
            TypeAll(red, green, blue, alpha);
            EXPECT_EQ(m_dialog.m_color.m_color, color) << alpha;
            EXPECT_EQ(Sample(), color);
        }
        TypeInto("R", "1000");
        EXPECT_EQ(Number("R")->Text(), "255");
    });
}

TEST_F(ColorDlg, CancelForgetsTheColourButNotTheCustomOnes) {
    m_dialog.m_color.m_color = 0x102030;
    const int result = RunModal(m_dialog, [&] {
        TypeInto("R", "1");
        Click("Add to Custom");
        const Dismiss<QMessageBox> box;
        Type(Number("R"), "bad");
        Click("Cancel");
        EXPECT_FALSE(m_dialog.isVisible());
        EXPECT_EQ(box.m_count, 0); // nobody complains about a number that is thrown away
    });
    EXPECT_EQS((result, CDialog::kCancel), (CCustomColorCtrl::Colors()[0].m_color, 0x012030U));
}

TEST_F(ColorDlg, AngleSnapsWhenStepped) {
    // 145 and 55 lie nearer to 135 and 45.
    const std::tuple<int, Qt::Key, int> cases[] = {
        {100, Qt::Key_Up, 135}, {100, Qt::Key_Down, 45}, {0, Qt::Key_Down, 0},
        {360, Qt::Key_Up, 360}, {350, Qt::Key_Up, 360},  {-90, Qt::Key_Up, 0},
        {23, Qt::Key_Up, 90},   {22, Qt::Key_Up, 45},    {2147483647, Qt::Key_Up, 360}};
    for (const auto& [from, key, to] : cases) {
        CColorDlg dialog;
        dialog.m_color.m_type = 2;
        dialog.m_color.m_direction = from;
        RunModal(dialog, [&dialog, pressed = key] {
            Find(dialog, "Angle")->setFocus();
            QTest::keyClick(Find(dialog, "Angle"), pressed);
        });
        EXPECT_EQ(dialog.m_color.m_direction, to) << from;
    }
    m_dialog.m_color.m_type = 2;
    RunModal(m_dialog, [&] {
        for (const auto& [typed, angle] : {std::pair("361", 360), {"-30", -30}, {"100", 100}}) { // these do not snap
            TypeInto("Angle", typed);
            EXPECT_EQ(m_dialog.m_color.m_direction, angle);
        }
    });
}

TEST_F(ColorDlg, TypesShareTheNumbersTheyStartedWith) {
    m_dialog.m_color.m_color = 0x05010203;
    m_dialog.m_color.m_direction = 30;
    RunModal(m_dialog, [&] {
        TypeInto("R", "9");
        Choose("Type", 2);
        EXPECT_EQS((Numbers(), "1 2 3 5 "), (m_dialog.m_color.m_type, 2), (m_dialog.m_color.m_color, 0x05010203U),
                   (m_dialog.m_color.m_direction, 30));
        Choose("Type", 1); // no path: taken as it is
        EXPECT_EQ(m_dialog.m_color.m_type, 1);
        Choose("Type", 0);
        EXPECT_EQ(m_dialog.m_color.m_color, 0x05090203U);
        Choose("Type", 1);
        Click("OK");
    });
    EXPECT_EQS((m_dialog.m_color.m_type, 1), (m_dialog.m_color.m_patternFile.empty(), true));
}

TEST_F(ColorDlg, PaletteNeedsACell) {
    m_dialog.m_color.m_color = 0x05010203;
    RunModal(m_dialog, [&] {
        Choose("Palette", 2); // no cell is selected yet
        EXPECT_EQS((m_dialog.m_color.m_color, 0x05010203U), (Numbers(), "1 2 3 5 "));
        ClickPalette(8);
        EXPECT_EQS((m_dialog.m_color.m_color, 0x80FF0000U), (Numbers(), "255 0 0 128 "), (Spectrum(), 0x0000FFU));
        Choose("Palette", 1); // the same cell of another palette
        EXPECT_EQ(m_dialog.m_color.m_color, 0x00FF0000U);
        TypeInto("R", "3");
        ClickPalette(8); // selected as it is, it says nothing
        EXPECT_EQ(m_dialog.m_color.m_color, 0x00030000U);
    });
}

TEST_F(ColorDlg, SpectrumLeavesTransparencyAlone) {
    m_dialog.m_color.m_color = 0x400000FF;
    RunModal(m_dialog, [&] {
        QWidget* spectrum = Find(m_dialog, "ARGB");
        spectrum->setFocus();
        QTest::keyClick(spectrum, Qt::Key_Home); // hue 0
        EXPECT_EQS((m_dialog.m_color.m_color, 0x40FF0000U), (Numbers(), "255 0 0 64 "));
        QTest::keyClick(spectrum, Qt::Key_Tab);
        QTest::keyClick(spectrum, Qt::Key_End); // black
        QTest::keyClick(spectrum, Qt::Key_Up);
        QTest::keyClick(spectrum, Qt::Key_PageUp);
        EXPECT_EQ(m_dialog.m_color.m_color, 0x40FFFFFFU);
    });
}

TEST_F(ColorDlg, CustomColoursGoRoundAndComeBack) {
    RunModal(m_dialog, [&] {
        for (int i = 1; i <= 19; ++i) {
            TypeInto("R", QByteArray::number(i).constData());
            Click("Add to Custom");
        }
        EXPECT_EQS((CCustomColorCtrl::Colors()[0].m_color, 0x13FFFFU),
                   (CCustomColorCtrl::Colors()[1].m_color, 0x02FFFFU),
                   (CCustomColorCtrl::Colors()[17].m_color, 0x12FFFFU));
        CCustomColorCtrl::Colors()[5].m_type = 2;
        CCustomColorCtrl::Colors()[5].m_direction = 45;
        ClickCustom(5);
        EXPECT_EQS((m_dialog.m_color.m_type, 2), (Find<QComboBox>(m_dialog, "Type")->currentIndex(), 0),
                   (Numbers(), "19 255 255 0 "));
        Click("OK");
    });
    EXPECT_EQS((m_dialog.m_color.m_type, 2), (m_dialog.m_color.m_color, 0x06FFFFU), (m_dialog.m_color.m_direction, 45));
}

TEST_F(ColorDlg, TakesHexTexts) {
    using Case = std::tuple<const char*, std::uint32_t, const char*>;
    const Case cases[] = {
        {"#2f5d8a", 0x002F5D8A, "#2F5D8A"},
        {"2F5D8A", 0x002F5D8A, "#2F5D8A"},
        {" #fa0 ", 0x00FFAA00, "#FFAA00"},
        {"fa08", 0x77FFAA00, "#FFAA0088"},
        {"#11223380", 0x7F112233, "#11223380"},
        {"#12345600", 0xFF000000, "#00000000"},
        {"#12345", 0x00336699, "#336699"},
        {"red", 0x00336699, "#336699"},
        {"", 0x00336699, "#336699"},
        {"#+12345", 0x00336699, "#336699"},
    };
    RunModal(m_dialog, [&] {
        auto* hex = Find<QLineEdit>(m_dialog, "Hex");
        for (const auto& [typed, color, shown] : cases) {
            TypeAll("51", "102", "153", "0"); // #336699, unless the text is a colour
            Type(hex, typed);
            QTest::keyClick(hex, Qt::Key_Return);
            EXPECT_EQ(m_dialog.m_color.m_color, color) << typed;
            EXPECT_EQ(hex->text(), shown) << typed;
            if (color != 0xFF000000) EXPECT_EQ(Spectrum() & 0xFF, color >> 16 & 0xFF) << typed;
        }
        hex->selectAll();
        QGuiApplication::clipboard()->setText("#0a141e");
        hex->paste();
        QTest::keyClick(hex, Qt::Key_Right);
        TypeInto("A", "254"); // takes the focus from the edit, which was not committed before
        EXPECT_EQ(m_dialog.m_color.m_color, 0xFE0A141EU);
    });
}

TEST_F(ColorDlg, ShowsTheOldColourAndThoseUsedLately) {
    CRecentColorCtrl::Colors().clear();
    for (int i = 1; i <= 10; ++i) {
        CColorDlg dialog;
        dialog.m_color.m_type = i % 2 == 0 ? 2 : 0;
        dialog.m_color.m_color = static_cast<std::uint32_t>(i == 10 ? 3 : i); // the third again
        RunModal(dialog, [&] { QTest::mouseClick(Find(dialog, "OK"), Qt::LeftButton); });
    }
    m_dialog.m_color.m_color = 0x123456;
    RunModal(m_dialog, [&] {
        std::string order;
        for (const CChartColor& color : CRecentColorCtrl::Colors()) order += std::to_string(color.m_color) + ' ';
        EXPECT_EQ(order, "3 9 8 7 6 5 4 3 "); // General and Metal are two colours
        ClickCell("RecentColors", {4, 2}, 2);
        EXPECT_EQS((m_dialog.m_color.m_type, 2), (Find<QComboBox>(m_dialog, "Type")->currentIndex(), 2),
                   (Numbers(), "0 0 8 0 "), (Sample(), 8U));
        auto* before = m_dialog.findChild<CChartPreviewView*>("Before");
        EXPECT_EQ(before->m_sampleColor.m_color, 0x123456U);
        QTest::mouseClick(before->viewport(), Qt::LeftButton);
        EXPECT_EQS((m_dialog.m_color.m_type, 0), (Numbers(), "18 52 86 0 "));
    });
}

TEST_F(ColorDlg, TellsColoursInWords) {
    using Case = std::tuple<int, std::uint32_t, const char*>;
    for (const auto& [type, value, text] :
         {Case{0, 0x002F5D8A, "#2F5D8A, opaque"}, Case{0, 0x802F5D8A, "#2F5D8A, 50 % transparent"},
          Case{0, 0xFF000000, "transparent"}, Case{2, 0x000102, "Metal #000102, opaque, 90 degrees"},
          Case{1, 0, "Pattern: brick.png"}}) {
        CChartColor color;
        color.m_type = type;
        color.m_color = value;
        color.m_direction = 90;
        color.m_patternFile = "brick.png";
        EXPECT_EQ(ColorText(color).toStdString(), text);
    }
}
