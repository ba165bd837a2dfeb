#pragma once
// A person in front of a dialog: knows what stands on the screen, or what a screen reader says, and acts by
// the toolkit's own events.

#include "tests/driver/windows.h"
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <stdexcept>
#include <string>

/// A caption as it is read: without the mark of its letter and the colon at its end.
inline QString Read(QString caption) {
    caption.remove(u'&');
    return caption.endsWith(u':') ? caption.chopped(1) : caption;
}

/// Replaces the text of an edit as a person does, and leaves it there.
inline void Type(QWidget* edit, const QString& text) {
    edit->setFocus(Qt::MouseFocusReason);
    QTest::keyClick(edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

class Person {
public:
    explicit Person(QWidget& window) : m_window(window) {}

    QWidget& Window() const { return m_window; }

    /// The control of that name that shows: pages have controls of the same name.
    template <class Control = QWidget> Control& Find(const QString& name) const {
        for (Control* found : m_window.findChildren<Control*>())
            if (found->isVisible() && found->accessibleName() == name) return *found;
        throw std::runtime_error("no control " + name.toStdString());
    }
    /// The control at a label, in the group of that caption; both may be empty. Check boxes, radio buttons
    /// and buttons are their own labels; what has none is known by its group.
    QWidget& At(const QString& group, const QString& label) const {
        for (QWidget* control : Inputs())
            if (GroupOf(*control) == Read(group) && LabelOf(*control) == Read(label)) return *control;
        for (QWidget* control : Inputs()) // a picker beside another control has its name alone
            if (GroupOf(*control) == Read(group) &&
                (control->objectName() == label || control->objectName() == label + "..."))
                return *control;
        throw std::runtime_error(("no control \"" + group + "\" \"" + label + '"').toStdString());
    }
    /// All controls that show a property: what shows, also greyed, and takes the focus.
    QList<QWidget*> Inputs() const {
        QList<QWidget*> found;
        for (QWidget* widget : m_window.findChildren<QWidget*>())
            if (widget->isVisible() && IsInput(*widget)) found += widget;
        return found;
    }
    QPushButton& Button(const QString& group, const QString& text) const {
        for (QPushButton* button : m_window.findChildren<QPushButton*>())
            if (button->isVisible() && Read(button->text()) == Read(text) &&
                (group.isEmpty() || GroupOf(*button) == Read(group)))
                return *button;
        throw std::runtime_error("no button " + text.toStdString());
    }
    static QString GroupOf(const QWidget& control) {
        for (const QWidget* above = &control; above != nullptr; above = above->parentWidget())
            if (const auto* box = qobject_cast<const QGroupBox*>(above)) return Read(box->title());
        return {};
    }
    QString LabelOf(const QWidget& control) const {
        for (const QLabel* label : m_window.findChildren<QLabel*>())
            if (label->isVisible() && label->buddy() == &control) return Read(label->text());
        const auto* button = qobject_cast<const QAbstractButton*>(&control);
        return button == nullptr || IsPicker(*button) ? QString() : Read(button->text());
    }

    QString TextOf(const QString& number) const {
        return Find<QAbstractSpinBox>(number).template findChild<QLineEdit*>()->text();
    }
    QString Focus() const {
        return m_window.focusWidget() == nullptr ? QString() : m_window.focusWidget()->accessibleName();
    }

    void Click(QWidget& control) const {
        // A check box is hit on its box: its text may end long before the control does.
        QTest::mouseClick(&control, Qt::LeftButton, {}, QPoint(8, control.height() / 2));
    }
    void Click(const QString& name) const { Click(Find(name)); }
    void Press(QWidget& spin, bool up) const {
        const int y = up ? spin.height() / 4 : spin.height() * 3 / 4;
        QTest::mouseClick(&spin, Qt::LeftButton, {}, QPoint(spin.width() - 8, y));
    }
    void Press(const QString& number, bool up) const { Press(Find<QAbstractSpinBox>(number), up); }
    void Type(const QString& edit, const QString& text) const { ::Type(&Find(edit), text); }
    void Key(Qt::Key key) const { QTest::keyClick(m_window.focusWidget(), key); }
    void Leave() const { Key(Qt::Key_Tab); }
    void Enter() const { Key(Qt::Key_Return); }
    void Give(const QString& edit, const QString& text) const {
        Type(edit, text);
        Leave();
    }
    void Choose(QComboBox& box, int row) const {
        box.setFocus();
        box.showPopup();
        QTest::keyClick(box.view(), Qt::Key_Home);
        for (int i = 0; i < row; ++i) QTest::keyClick(box.view(), Qt::Key_Down);
        QTest::keyClick(box.view(), Qt::Key_Return);
    }
    void Choose(const QString& combo, int row) const { Choose(Find<QComboBox>(combo), row); }

    QListWidget& List(const QString& name) const { return *Find(name).findChild<QListWidget*>(); }
    QStringList Rows(const QString& name) const {
        QStringList rows;
        for (int i = 0; i < List(name).count(); ++i) rows.append(List(name).item(i)->text());
        return rows;
    }
    void Select(const QString& list, int row) const {
        QTest::mouseClick(List(list).viewport(), Qt::LeftButton, {},
                          List(list).visualItemRect(List(list).item(row)).center());
    }

    bool HasTab(const QString& caption) const { return TabOf(caption).second >= 0; }
    void Tab(const QString& caption) const {
        const auto [bar, index] = TabOf(caption);
        if (index < 0) throw std::runtime_error("no tab " + caption.toStdString());
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
    }
    QStringList Tabs() const {
        QStringList captions;
        for (const QTabBar* bar : m_window.findChildren<QTabBar*>())
            for (int i = 0; i < bar->count(); ++i) captions += Read(bar->tabText(i));
        return captions;
    }
    /// Clicks what opens another dialog, and acts in it. The dialog must be closed by the end.
    void In(QWidget& opener, const std::function<void(Person&)>& act) const {
        {
            const WhenModal person([&](QWidget& window) { Person(window).Meet(act); });
            Click(opener);
        }
        Activate(m_window);
    }
    /// Acts in this dialog, which must be closed by the end: who does not close it has made a mistake.
    void Meet(const std::function<void(Person&)>& act) {
        try {
            act(*this);
        } catch (const std::runtime_error& error) {
            ADD_FAILURE() << error.what();
        }
        if (m_window.isVisible()) {
            ADD_FAILURE() << "still open: " << qPrintable(m_window.windowTitle());
            static_cast<QDialog&>(m_window).reject();
        }
    }
    /// What the preview shows, within the mark that it has the focus.
    QImage Preview() const {
        QWidget& preview = Find("Preview");
        return preview.grab(preview.rect().adjusted(4, 4, -4, -4)).toImage();
    }
    void Ok() const { QTest::mouseClick(&Find("OK"), Qt::LeftButton); }
    void Cancel() const { QTest::mouseClick(&Find("Cancel"), Qt::LeftButton); }

private:
    static bool IsPicker(const QAbstractButton& button) {
        return button.text() == "..." || Read(button.text()) == "Font...";
    }
    static bool IsInput(const QWidget& widget) {
        const QWidget* above = widget.parentWidget();
        if (qobject_cast<const QLineEdit*>(&widget) != nullptr)
            return qobject_cast<const QAbstractSpinBox*>(above) == nullptr &&
                   qobject_cast<const QComboBox*>(above) == nullptr && !above->inherits("CSimpleCombo");
        if (const auto* button = qobject_cast<const QPushButton*>(&widget)) return IsPicker(*button);
        return qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
               qobject_cast<const QComboBox*>(&widget) != nullptr ||
               qobject_cast<const QCheckBox*>(&widget) != nullptr ||
               qobject_cast<const QRadioButton*>(&widget) != nullptr ||
               qobject_cast<const QPlainTextEdit*>(&widget) != nullptr;
    }
    std::pair<QTabBar*, int> TabOf(const QString& caption) const {
        for (QTabBar* bar : m_window.findChildren<QTabBar*>())
            for (int i = 0; i < bar->count(); ++i)
                if (bar->isVisible() && Read(bar->tabText(i)) == Read(caption)) return {bar, i};
        return {nullptr, -1};
    }

    QWidget& m_window;
};

/// Keeps a picture to look at, where CHART_PICTURES names a folder for it.
inline void KeepPicture(const Person& person, const QString& name) {
    const QString folder = qEnvironmentVariable("CHART_PICTURES");
    if (!folder.isEmpty()) EXPECT_TRUE(person.Window().grab().save(folder + u'/' + name + QStringLiteral(".png")));
}

/// The control of that object name that shows.
template <class Control = QWidget> Control* Find(QWidget& dialog, const char* name) {
    for (QWidget* found : dialog.findChildren<QWidget*>(QString::fromUtf8(name)))
        if (auto* control = dynamic_cast<Control*>(found); control != nullptr && found->isVisible()) return control;
    ADD_FAILURE() << "no control " << name;
    return nullptr;
}
