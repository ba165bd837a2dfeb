#pragma once
// The strip of an editor as a person uses it: steps back and forth, the list of changes, the search.

#include "tests/driver/audit.h"
#include "tests/driver/properties.h"
#include "tests/driver/random_person.h"

#include <QClipboard>

namespace driver {

/// A button of the strip, by its object name: what shows on it changes.
inline QAbstractButton& StripButton(const QWidget& window, const char* name) {
    auto* strip = window.findChild<QWidget*>(QStringLiteral("Strip"), Qt::FindDirectChildrenOnly);
    return *strip->findChild<QAbstractButton*>(QString::fromUtf8(name));
}

/// Presses Undo or Redo until there is nothing left to do, by its button. Gives the number of steps.
inline int AllTheWay(const QWidget& window, const char* button) {
    int steps = 0;
    for (; StripButton(window, button).isEnabled(); ++steps)
        StripButton(window, button).click();
    return steps;
}

/// Everything of the object under edit, as a text: what Ctrl+C on the preview copies.
inline QString CopiedLook(const QWidget& window) {
    auto* preview = window.findChild<QWidget*>(QStringLiteral("Preview"));
    if (preview == nullptr)
        return {};
    QGuiApplication::clipboard()->clear();
    preview->setFocus();
    QTest::keyClick(preview, Qt::Key_C, Qt::ControlModifier);
    return QGuiApplication::clipboard()->text();
}

/// At the bottom of the steps of every dialog stands what it was opened with, at their top what was last.
inline void MindSteps(RandomPerson& anybody) {
    anybody.m_meeting = [](QWidget& dialog) { dialog.setProperty("opening", CopiedLook(dialog)); };
    anybody.m_leaving = [](QWidget& dialog) {
        const QString opening = dialog.property("opening").toString();
        if (opening.isEmpty() || CopiedLook(dialog).isEmpty()) // no strip, or an edit that cannot be read
            return;
        AllTheWay(dialog, "Redo");
        const QString last = CopiedLook(dialog);
        AllTheWay(dialog, "Undo");
        EXPECT_EQ(CopiedLook(dialog), opening);
        AllTheWay(dialog, "Redo");
        EXPECT_EQ(CopiedLook(dialog), last);
    };
}

/// From the last row to the first, so that numbers come before the switches that change their limits.
inline void GiveAll(Person& person, const Properties& rows) {
    for (auto row = rows.rbegin(); row != rows.rend(); ++row)
        Go(
            person, QString::fromStdString(row->place), [&](Person& there) { Give(there, *row); });
}

/// All edits of a table undone give the object that the host gave; done again, the one that they made.
template <class Object>
void TestSteps(const Object& start, const CChartLayout& layout, const Properties& rows) {
    Object edited(start), undone(start);
    EXPECT_TRUE(Edit(edited, layout, [&](Person& person) {
        GiveAll(person, rows);
        const int steps = AllTheWay(person.Window(), "Undo");
        EXPECT_GE(steps, static_cast<int>(rows.size()) / 2);
        EXPECT_EQ(AllTheWay(person.Window(), "Redo"), steps);
        person.Ok();
    }));
    Object plain(start);
    EXPECT_TRUE(Edit(plain, layout, [&](Person& person) {
        GiveAll(person, rows);
        person.Ok();
    }));
    EXPECT_EQ(Difference(plain, edited), "") << "undone and done again";
    EXPECT_TRUE(Edit(undone, layout, [&](Person& person) {
        GiveAll(person, rows);
        QWidget& window = person.Window();
        for (int i = 0; i < 10000 && StripButton(window, "Undo").isEnabled(); ++i)
            QTest::keyClick(window.focusWidget(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(StripButton(window, "Changes").accessibleName(), "No changes");
        person.Ok();
    }));
    EXPECT_EQ(Difference(start, undone), "") << "undone";
}

/// Each row edited is one line in the list of changes, whose "Revert" gives the object back.
template <class Object>
void TestChanges(const Object& start, const CChartLayout& layout, const Properties& rows) {
    Object object(start);
    EXPECT_TRUE(Edit(object, layout, [&](Person& person) {
        QAbstractButton& changes = StripButton(person.Window(), "Changes");
        for (const Property& row : rows) {
            SCOPED_TRACE(row.place + '/' + row.group + '/' + row.label + ' ' + row.give);
            Go(person, QString::fromStdString(row.place), [&](Person& there) { Give(there, row); });
            const bool two = row.label == "Scale Type:"; // which sets the format of the labels too
            EXPECT_EQ(changes.accessibleName(), two ? "2 changes" : "1 change");
            changes.click();
            for (int i = 0; i < 2 && QApplication::activePopupWidget() != nullptr; ++i) {
                QWidget* list = QApplication::activePopupWidget();
                EXPECT_EQ(list->findChildren<QPushButton*>(QStringLiteral("Revert")).size(), two ? 2 - i : 1);
                auto* revert = list->findChild<QPushButton*>(QStringLiteral("Revert"));
                EXPECT_TRUE(i > 0 || revert->accessibleName().contains(u':'));
                revert->click();
                QCoreApplication::processEvents();
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            }
            EXPECT_EQ(changes.accessibleName(), "No changes");
            EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
            Activate(person.Window());
        }
        person.Ok();
    }));
    EXPECT_EQ(Difference(start, object), "");
}

/// Each row is found by its label, and gets the focus.
template <class Object>
void TestSearch(const Object& start, const CChartLayout& layout, const Properties& rows) {
    const auto here = [](const Person& person, const Property& row) {
        const QWidget& control =
            person.At(QString::fromStdString(row.group), QString::fromStdString(row.label));
        const QWidget* focus = person.Window().focusWidget();
        const auto* radio = qobject_cast<const QRadioButton*>(focus); // any of one group
        EXPECT_TRUE(!control.isEnabled() || focus == &control || control.isAncestorOf(focus) ||
                    (radio != nullptr && radio->parentWidget() == control.parentWidget()))
            << (focus == nullptr ? "no focus" : audit::Describe(*focus));
    };
    Object object(start);
    EXPECT_FALSE(Edit(object, layout, [&](Person& person) {
        for (const Property& row : rows) {
            SCOPED_TRACE(row.place + '/' + row.group + '/' + row.label);
            QTest::keyClick(&person.Window(), Qt::Key_F, Qt::ControlModifier);
            QWidget* search = QApplication::activePopupWidget();
            ASSERT_NE(search, nullptr);
            const QString group = Read(QString::fromStdString(row.group));
            const QString label = row.label.empty() ? group : Read(QString::fromStdString(row.label));
            QTest::keyClicks(search->findChild<QLineEdit*>(), label);
            auto* list = search->findChild<QListWidget*>();
            // "Tab > Button > Tab of the other dialog": each has its place in the line.
            QStringList parts;
            for (const QString& part : QString::fromStdString(row.place).split(u'>'))
                if (!part.contains(u'|') && !part.contains(u'.') && !part.contains(u'[') &&
                    !part.trimmed().isEmpty())
                    parts += part.trimmed();
            int found = -1;
            for (int i = 0; i < list->count() && found < 0; ++i) {
                const QString line = list->item(i)->text();
                const bool inside = row.place.find("...") != std::string::npos;
                const bool all = std::all_of(parts.begin(), parts.end(),
                                             [&line](const QString& part) { return line.contains(part); });
                if (line.startsWith(label) && all && (row.label.empty() || line.contains(group)) &&
                    (!inside || line.contains(QStringLiteral("Axis")) ||
                     line.contains(QStringLiteral("Layer"))))
                    found = i;
            }
            EXPECT_GE(found, 0) << "not found";
            list->setCurrentRow(std::max(found, 0));
            if (row.place.find("...") == std::string::npos) {
                QTest::keyClick(search->findChild<QLineEdit*>(), Qt::Key_Return);
                QCoreApplication::processEvents();
                Activate(person.Window());
                here(person, row);
            } else {
                const WhenModal dialog([](QWidget& window) {
                    QCoreApplication::processEvents();
                    Person(window).Cancel();
                });
                QTest::keyClick(search->findChild<QLineEdit*>(), Qt::Key_Return);
                QCoreApplication::processEvents();
            }
        }
        person.Cancel();
    }));
}

} // namespace driver
