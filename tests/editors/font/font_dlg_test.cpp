#include "editors/font/font_catalogue.h"
#include "editors/font/font_dlg.h"
#include "editors/preview/chart_preview_view.h"
#include "tests/driver/person.h"
#include "tests/driver/random_person.h"
#include <QAbstractButton>
#include <cmath>

namespace {
class FontDlg : public WidgetTest {
protected:
    FontDlg() {
        Fill({{"beta.ttf", "Beta Sans"}, {"beta2.ttf", "Beta"}, {"alpha.ttc|1", "alpha"}, {"b.ttf", "Beta"}});
        m_dialog.m_font.m_faceName = "Beta";
        m_dialog.m_font.m_fileName = "old.ttf";
        m_dialog.m_font.m_size = 14;
    }
    ~FontDlg() override { g_fontCatalogueLoaded = false; }
    static void Fill(const std::vector<std::pair<const char*, const char*>>& faces) {
        g_fontFileToFace.clear();
        g_fontFaceToFile.clear();
        for (const auto& [file, face] : faces) {
            g_fontFileToFace[file] = face;
            g_fontFaceToFile[face] = file;
        }
        g_fontCatalogueLoaded = true;
    }
    QLineEdit* Face() { return Find<QLineEdit>(m_dialog, "Font"); }
    QLineEdit* Size() { return Find<QLineEdit>(m_dialog, "Size"); }
    QListWidget* Faces() { return Find<QListWidget>(m_dialog, "Fonts"); }
    QListWidget* Sizes() { return Find<QListWidget>(m_dialog, "Sizes"); }
    static std::string Selected(const QListWidget* list) {
        const QList<QListWidgetItem*> items = list->selectedItems();
        return items.isEmpty() ? "none" : items[0]->text().toStdString();
    }
    static std::string Rows(const QListWidget* list) {
        std::string rows;
        for (int i = 0; i < list->count(); ++i) rows += list->item(i)->text().toStdString() + ',';
        return rows;
    }
    static void ClickRow(QListWidget* list, int row) {
        list->scrollToItem(list->item(row));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
    }
    static void Enter(QWidget* edit) { QTest::keyClick(edit, Qt::Key_Return); }
    /// What the dialog holds and what it shows, which is to be the same.
    std::string Font() {
        const auto text = [](const CChartFont& font) {
            return QString::asprintf("%s, %s, %g", font.m_faceName.data(), font.m_fileName.data(), font.m_size)
                .toStdString();
        };
        EXPECT_EQ(text(m_dialog.findChild<CChartPreviewView*>("Sample")->m_sampleFont), text(m_dialog.m_font));
        return text(m_dialog.m_font);
    }

    CFontDlg m_dialog;
};
} // namespace

TEST_F(FontDlg, ShowsTheFontItIsGiven) {
    const int result = RunModal(m_dialog, [&] {
        EXPECT_EQ(Rows(Faces()), "(Default),alpha,Beta,Beta,Beta Sans,"); // a row for each file
        EXPECT_EQS((Rows(Sizes()), "8,9,10,11,12,14,16,18,20,22,24,26,28,36,48,72,"), (Face()->text(), "Beta"),
                   (Faces()->currentRow(), 2), (Size()->text(), "14"), (Selected(Sizes()), "14"));
        EXPECT_EQ(Font(), "Beta, b.ttf, 14"); // the file is looked up anew
        QTest::mouseClick(Find(m_dialog, "OK"), Qt::LeftButton);
    });
    EXPECT_EQ(result, CDialog::kOK);
}

TEST_F(FontDlg, KnowsTheDefaultFace) {
    m_dialog.m_font.m_faceName = "(Default)";
    m_dialog.m_font.m_size = 12.5;
    RunModal(m_dialog, [&] {
        EXPECT_EQS((Selected(Faces()), "(Default)"), (Size()->text(), "12.5"), (Selected(Sizes()), "none"),
                   (Font(), "(Default), gulim.ttc, 12.5"));
        Sizes()->setFocus(); // chooses nothing by itself
        EXPECT_EQ(Font(), "(Default), gulim.ttc, 12.5");
        QTest::keyClick(Sizes(), Qt::Key_Down);
        EXPECT_EQ(Font(), "(Default), gulim.ttc, 9");
    });
}

TEST_F(FontDlg, StandsAnEmptyCatalogueAndAForeignFace) {
    Fill({});
    RunModal(m_dialog, [&] {
        EXPECT_EQS((Rows(Faces()), "(Default),"), (Selected(Faces()), "none"), (Font(), "Beta, , 14"));
        // Going through the edit keeps a face that is not installed; Enter takes the first row.
        Face()->setFocus();
        QTest::keyClick(Face(), Qt::Key_Tab);
        EXPECT_EQ(Font(), "Beta, , 14");
        Face()->setFocus();
        Enter(Face());
        EXPECT_EQ(Font(), "(Default), gulim.ttc, 14");
    });
}

TEST_F(FontDlg, TakesRowsThatAreChosen) {
    RunModal(m_dialog, [&] {
        ClickRow(Faces(), 1);
        EXPECT_EQS((Font(), "alpha, alpha.ttc|1, 14"), (Face()->text(), "alpha"));
        ClickRow(Sizes(), 15);
        EXPECT_EQS((Font(), "alpha, alpha.ttc|1, 72"), (Size()->text(), "72"));
        Faces()->setFocus();
        QTest::keyClick(Faces(), Qt::Key_End);
        EXPECT_EQ(Font(), "Beta Sans, beta.ttf, 72");
        Enter(Faces());
        EXPECT_FALSE(m_dialog.isVisible());
    });
    EXPECT_STREQ(m_dialog.m_font.m_fileName.data(), "beta.ttf");
}

TEST_F(FontDlg, SnapsTypedFacesToTheList) {
    // while typing
    using Case = std::tuple<const char*, const char*, const char*>;
    const Case cases[] = {{"beta s", "Beta Sans", "Beta Sans"},
                          {"be", "Beta", "Beta"},
                          {"ALPHA", "alpha", "alpha"},
                          {"zzz", "none", "(Default)"},
                          {"(", "(Default)", "(Default)"}};
    for (const bool byEnter : {true, false}) {
        CFontDlg dialog;
        RunModal(dialog, [&] {
            auto* face = Find<QLineEdit>(dialog, "Font");
            for (const auto& [typed, selected, taken] : cases) {
                Type(face, typed);
                EXPECT_EQS((face->text(), typed), (Selected(Find<QListWidget>(dialog, "Fonts")), selected));
                QTest::keyClick(face, byEnter ? Qt::Key_Return : Qt::Key_Tab);
                EXPECT_EQ(face->text(), taken);
                EXPECT_STREQ(dialog.m_font.m_faceName.data(), taken);
                EXPECT_TRUE(dialog.isVisible());
            }
        });
    }
}

TEST_F(FontDlg, RoundsTypedSizes) {
    using Case = std::tuple<const char*, const char*, const char*, double>;
    const Case cases[] = {{"12.345", "12.35", "none", 12.35},
                          {"18", "18", "18", 18},
                          {" 7 ", "7", "72", 7},
                          {"1e1", "10", "10", 10},
                          {"-3", "1", "10", 1},
                          {"1e6", "1000", "none", 1000}};
    RunModal(m_dialog, [&] {
        for (const auto& [typed, shown, selected, size] : cases) {
            Type(Size(), typed);
            Enter(Size());
            EXPECT_EQ(m_dialog.m_font.m_size, size) << typed;
            EXPECT_EQS((Size()->text(), shown), (Size()->selectedText(), shown));
            EXPECT_EQ(Selected(Sizes()), selected); // the first row that begins like it
        }
        // The selected row counts when it is clicked, although the selection stays.
        Type(Size(), "7");
        QTest::keyClick(Size(), Qt::Key_Tab);
        ClickRow(Sizes(), 15);
        EXPECT_EQ(m_dialog.m_font.m_size, 72);
        Type(Size(), "9");
        Enter(Size());
        EXPECT_TRUE(m_dialog.isVisible());
        Sizes()->setFocus();
        Enter(Sizes());
        EXPECT_FALSE(m_dialog.isVisible());
    });
    EXPECT_EQ(m_dialog.m_font.m_size, 9);
}

TEST_F(FontDlg, PutsTheLastSizeBackWhereTheTextIsNone) {
    RunModal(
        m_dialog,
        [&] {
            for (const char* text : {"", "big", "nan", "inf", "1,5", "1e999"}) {
                m_dialog.activateWindow(); // a box was over it
                ASSERT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
                const Dismiss<QMessageBox> box;
                Type(Size(), text);
                QTest::keyClick(Size(), Qt::Key_Tab);
                EXPECT_TRUE(box.Came());
                EXPECT_EQ(box.m_text, "\"Size\" must be a number.") << text;
                EXPECT_EQ(box.m_count, 1) << text;
                EXPECT_EQS((Size()->selectedText(), "14"), (m_dialog.focusWidget(), Size()),
                           (Font(), "Beta, b.ttf, 14"));
            }
            m_dialog.activateWindow();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
            const Dismiss<QMessageBox> box;
            Type(Size(), "x");
            QTest::mouseClick(Find(m_dialog, "OK"), Qt::LeftButton);
            EXPECT_EQS((box.Came(), true), (m_dialog.isVisible(), true));
            Type(Size(), "x");
            QTest::mouseClick(Find(m_dialog, "Cancel"), Qt::LeftButton);
            EXPECT_FALSE(m_dialog.isVisible());
            EXPECT_EQ(box.m_count, 1); // nobody complains about a size that is thrown away
        });
}

TEST_F(FontDlg, RandomEventsLeaveItAliveAndItsFontLegal) {
    RandomPerson person(5);
    int opened = 0;
    CChartFont font;
    person.Use(RandomEventCount(), [&] {
        CFontDlg dialog;
        dialog.m_font = font;
        if (dialog.DoModal() == CDialog::kOK) {
            font = dialog.m_font;
            EXPECT_TRUE(std::isfinite(font.m_size));
            EXPECT_STREQ(font.m_fileName.data(), GetFontFileName(font.m_faceName.data()));
        }
        ++opened;
    });
    EXPECT_GT(opened, 1);
}
