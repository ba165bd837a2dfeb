#pragma once
// A person in front of the editor: opens it as a host does and acts by real events while its modal loop runs.

#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <charteditors/charteditors.h>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

namespace pie_test {

// ---- Values

inline std::string Shown(const CChartColor& color) {
    std::ostringstream out;
    out << color.m_type << '/' << std::hex << color.m_color << std::dec << '/' << color.m_direction << '/'
        << color.m_patternFile.data();
    return out.str();
}

/// Every field of a pie, exactly.
inline std::string Shown(const CPieChart& pie) {
    std::ostringstream out;
    out << std::hexfloat << pie.m_startAngle << ' ' << pie.m_clockWise << ' ' << pie.m_labelLayout << ' '
        << pie.m_labelPosition << ' ' << pie.m_labelAlignment << ' ' << pie.m_show3D << ' ' << pie.m_shadow3D
        << ' ' << pie.m_depth3D << ' ' << pie.m_angle3D << ' ' << pie.m_useDonut << ' '
        << pie.m_donutInnerRadius << ' ' << Shown(pie.m_edgeColor) << ' ' << Shown(pie.m_joinLineColor)
        << '\n';
    for (int i = 0; i < pie.m_sectors.size(); ++i) {
        const CPieChartSector& sector = pie.m_sectors[i];
        out << sector.m_showExplode << ' ' << sector.m_useDistance << ' ' << sector.m_distance << ' '
            << Shown(sector.m_color) << " '" << sector.m_text.data() << "'\n";
    }
    return out.str();
}

inline CPieChartSector Sector(const char* text, std::uint32_t color = 0) {
    CPieChartSector sector;
    sector.m_text = text;
    sector.m_color.m_color = color;
    return sector;
}

inline CPieChart PieOf(std::initializer_list<const char*> texts) {
    CPieChart pie;
    for (const char* text : texts)
        pie.m_sectors.push_back(Sector(text));
    return pie;
}

/// A pie in which no field has its default.
inline CPieChart UnusualPie() {
    CPieChart pie = PieOf({"one\nof two lines", "", "100 % {value} <*b*>"});
    pie.m_startAngle = 1.0 / 3;
    pie.m_clockWise = false;
    pie.m_labelLayout = 0;
    pie.m_labelPosition = 17;
    pie.m_labelAlignment = 13;
    pie.m_show3D = true;
    pie.m_shadow3D = true;
    pie.m_depth3D = 12;
    pie.m_angle3D = 123.456789;
    pie.m_useDonut = true;
    pie.m_donutInnerRadius = 250; // out of its range, and none of the editor's business until it is edited
    pie.m_edgeColor.m_type = 2;
    pie.m_edgeColor.m_direction = 33;
    pie.m_joinLineColor.m_type = 1;
    pie.m_joinLineColor.m_patternFile = "no such file.png";
    pie.m_sectors[1].m_showExplode = true;
    pie.m_sectors[1].m_useDistance = true;
    pie.m_sectors[1].m_distance = 30;
    return pie;
}

// ---- Windows

/// The host's own application object. Not made before it is needed: some hosts have none.
inline void NeedApplication() {
    static int count = 1;
    static char name[] = "host";
    static char* arguments[] = {name, nullptr};
    if (QCoreApplication::instance() == nullptr)
        new QApplication(count, arguments); // to the end of the process
}

/// Calls `act` once, as soon as a modal window other than the present one is up. Fails if none comes.
class WhenModal {
public:
    explicit WhenModal(std::function<void(QWidget&)> act) {
        NeedApplication();
        m_present = QApplication::activeModalWidget();
        m_timer = std::make_unique<QTimer>();
        QObject::connect(m_timer.get(), &QTimer::timeout, [this, act = std::move(act)] {
            QWidget* window = QApplication::activeModalWidget();
            if (window != nullptr && window != m_present) {
                m_timer->stop();
                m_came = true;
                window->activateWindow();
                EXPECT_TRUE(QTest::qWaitForWindowActive(window));
                act(*window);
            }
        });
        m_timer->start(1);
    }
    ~WhenModal() { EXPECT_TRUE(m_came) << "no modal window came"; }

private:
    QWidget* m_present = nullptr;
    std::unique_ptr<QTimer> m_timer;
    bool m_came = false;
};

/// Expects a message box while `cause` runs, and answers it.
inline void ExpectBox(const char* title, const char* text, const std::function<void()>& cause) {
    const WhenModal answer([&](QWidget& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_NE(box, nullptr) << qPrintable(window.windowTitle());
        EXPECT_EQ(box->windowTitle(), QString::fromUtf8(title));
        EXPECT_EQ(box->text(), QString::fromUtf8(text));
        EXPECT_EQ(box->icon(), QMessageBox::Warning);
        EXPECT_EQ(box->buttons().size(), 1);
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    });
    cause();
}

/// The open editor.
class PieEditor {
public:
    explicit PieEditor(QWidget& window) : m_window(window) {}

    template <class Control>
    Control* Find(const char* name) {
        auto* control = m_window.findChild<Control*>(QString::fromUtf8(name));
        if (control == nullptr)
            throw std::runtime_error(std::string("no control ") + name);
        return control;
    }
    QWidget& Window() { return m_window; }
    QAbstractSpinBox* Number(const char* name) { return Find<QAbstractSpinBox>(name); }
    QString NumberText(const char* name) { return Number(name)->findChild<QLineEdit*>()->text(); }
    QListWidget* List() { return m_window.findChild<QListWidget*>(); }
    QPlainTextEdit* Text() { return m_window.findChild<QPlainTextEdit*>(); }
    QStringList Rows() {
        QStringList rows;
        for (int i = 0; i < List()->count(); ++i)
            rows.append(List()->item(i)->text());
        return rows;
    }

    void Click(const char* name) {
        auto* button = Find<QAbstractButton>(name);
        // A check box is hit on its box: its text may end long before the control does.
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    void Press(const char* name, bool up) {
        QAbstractSpinBox* spin = Number(name);
        const int y = up ? spin->height() / 4 : spin->height() * 3 / 4;
        QTest::mouseClick(spin, Qt::LeftButton, {}, QPoint(spin->width() - 8, y));
    }
    /// Types over what stands in a number, and stays there.
    void Type(const char* name, const char* text) {
        QAbstractSpinBox* spin = Number(name);
        spin->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(spin, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(spin, QString::fromUtf8(text));
    }
    void Leave() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab); }
    void SelectRow(int row) {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {},
                          List()->visualItemRect(List()->item(row)).center());
    }
    /// Clicks the "..." of a colour field, makes the colour a metal one, and answers the dialog.
    void ChooseMetal(const char* field, bool ok) {
        const WhenModal choose([ok](QWidget& dialog) {
            auto* type = dialog.findChild<QComboBox*>(QStringLiteral("Type"));
            ASSERT_NE(type, nullptr);
            QTest::keyClick(type, Qt::Key_M);
            QTest::keyClick(&dialog, ok ? Qt::Key_Return : Qt::Key_Escape);
        });
        QTest::mouseClick(Find<QWidget>(field)->findChild<QPushButton*>(), Qt::LeftButton);
    }
    QImage Preview() {
        auto* preview = m_window.findChild<QWidget*>(QStringLiteral("Preview"));
        return preview == nullptr ? QImage() : preview->grab().toImage();
    }
    void Ok() { Click("OK"); }
    void Cancel() { Click("Cancel"); }

private:
    QWidget& m_window;
};

/// Opens the editor through the entry function and lets `act` be the person. One who has not closed it by the
/// end has made a mistake.
inline bool Edit(CPieChart& pie, const CChartLayout& layout, const std::function<void(PieEditor&)>& act) {
    const WhenModal person([&](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), QStringLiteral("PieChart"));
        PieEditor editor(window);
        try {
            act(editor);
        } catch (const std::runtime_error& error) {
            ADD_FAILURE() << error.what();
        }
        if (window.isVisible()) {
            ADD_FAILURE() << "the editor is still open";
            static_cast<QDialog&>(window).reject();
        }
    });
    return ShowPieChartWnd(pie, layout);
}

inline bool Edit(CPieChart& pie, const std::function<void(PieEditor&)>& act) {
    return Edit(pie, CChartLayout(), act);
}

} // namespace pie_test
