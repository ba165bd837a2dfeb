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

/// Presses Undo or Redo until there is nothing left to do, by its button. Gives the number of steps; -1 if
/// one cannot be done, as while an edit complains.
inline int AllTheWay(const QWidget& window, const char* button) {
    const auto tips = [&window] {
        return StripButton(window, "Undo").toolTip() + u'|' + StripButton(window, "Redo").toolTip();
    };
    int steps = 0;
    for (; StripButton(window, button).isEnabled(); ++steps) {
        const QString before = tips();
        StripButton(window, button).click();
        if (tips() == before) return -1;
    }
    return steps;
}

/// Everything of the object under edit, as a text: what Ctrl+C on the preview copies.
inline QString CopiedLook(const QWidget& window) {
    auto* preview = window.findChild<QWidget*>(QStringLiteral("Preview"));
    if (preview == nullptr) return {};
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
        if (AllTheWay(dialog, "Redo") < 0 || (StripButton(dialog, "Undo").isEnabled() && AllTheWay(dialog, "Undo") < 0))
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
template <class Object> void TestSteps(const Object& start, const CChartLayout& layout, const Properties& rows) {
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

template <class Object> bool HasValue(const Object& object, const std::string& path, const std::string& text) {
    for (const auto& [each, value] : model::Values(object))
        if (each == path) return value == text;
    return false;
}

/// Each row edited is one line in the list of changes, whose "Revert" gives the object back.
template <class Object> void TestChanges(const Object& start, const CChartLayout& layout, const Properties& rows) {
    Object object(start);
    EXPECT_TRUE(Edit(object, layout, [&](Person& person) {
        QAbstractButton& changes = StripButton(person.Window(), "Changes");
        for (const Property& row : rows) {
            const std::size_t is = row.change.find('=');
            if (is != std::string::npos && HasValue(start, row.Path(), row.change.substr(is + 1)))
                continue; // nothing would change
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

/// The lines of an open search that can be the row: with its label at the front, its group, and the tabs on
/// the way; in a dialog of its own also with what opens it.
inline std::vector<int> LinesOf(const Property& row, const QListWidget& list) {
    const QString group = Read(QString::fromStdString(row.group));
    QStringList parts{group};
    for (const QString& part : QString::fromStdString(row.place).split(u'>'))
        if (!part.contains(u'|') && !part.contains(u'.') && !part.contains(u'[')) parts += part.trimmed();
    const QString label =
        row.label.empty() ? group : Read(QString::fromStdString(row.label).remove(QStringLiteral("...")));
    std::vector<int> lines;
    for (int i = 0; i < list.count(); ++i) {
        const QString line = list.item(i)->text();
        const bool all =
            std::all_of(parts.begin(), parts.end(), [&line](const QString& part) { return line.contains(part); });
        if (line.startsWith(label) && all) lines.push_back(i);
    }
    return lines;
}

/// Each row is found by its label, and gets the focus; one that has no label by that of its group.
template <class Object> void TestSearch(const Object& start, const CChartLayout& layout, const Properties& rows) {
    const auto isThere = [](const Person& person, const Property& row) {
        const QWidget& control = person.At(QString::fromStdString(row.group), QString::fromStdString(row.label));
        const QWidget* focus = person.Window().focusWidget();
        const auto* radio = qobject_cast<const QRadioButton*>(focus); // any of one group
        return !control.isEnabled() || focus == &control || control.isAncestorOf(focus) ||
               (radio != nullptr && radio->parentWidget() == control.parentWidget());
    };
    Object object(start);
    EXPECT_FALSE(Edit(object, layout, [&](Person& person) {
        for (const Property& row : rows) {
            SCOPED_TRACE(row.place + '/' + row.group + '/' + row.label);
            const bool inside = row.place.find("...") != std::string::npos;
            std::size_t tries = 1;
            bool there = false;
            for (std::size_t i = 0; i < tries && !there; ++i) {
                QTest::keyClick(&person.Window(), Qt::Key_F, Qt::ControlModifier);
                QWidget* search = QApplication::activePopupWidget();
                ASSERT_NE(search, nullptr);
                auto* query = search->findChild<QLineEdit*>();
                const QString label = QString::fromStdString(row.label.empty() ? row.group : row.label);
                QTest::keyClicks(query, Read(QString(label).remove(QStringLiteral("..."))));
                auto* list = search->findChild<QListWidget*>();
                const std::vector<int> lines = LinesOf(row, *list);
                ASSERT_FALSE(lines.empty()) << "not found";
                tries = lines.size(); // labels may be there twice on a page
                list->setCurrentRow(lines[i]);
                if (inside) {
                    const WhenModal dialog([&](QWidget& window) {
                        QCoreApplication::processEvents();
                        there = isThere(Person(window), row);
                        Person(window).Cancel();
                    });
                    QTest::keyClick(query, Qt::Key_Return);
                    QCoreApplication::processEvents();
                } else {
                    QTest::keyClick(query, Qt::Key_Return);
                    QCoreApplication::processEvents();
                    there = isThere(person, row);
                }
                Activate(person.Window());
            }
            EXPECT_TRUE(there);
        }
        person.Cancel();
    }));
}
} // namespace driver
