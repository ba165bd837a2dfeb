#pragma once
// The properties of an editor as a table, one row each: where its control stands, what a person gives it, and
// which field that changes. Every row is tried in a dialog of its own, through the host's entry function: the
// named field of the returned object has changed and no other, and the preview shows it.

#include "tests/driver/editor.h"
#include <QDateEdit>
#include <cctype>
#include <cmath>
#include <limits>
#include <map>
#include <set>

namespace driver {
constexpr double kNoLimit = std::numeric_limits<double>::infinity();

/// What the arrows of a number do, and between which limits it stays.
struct Number {
    double step = 1;
    double floor = -kNoLimit;
    double ceiling = kNoLimit;
};

struct Property {
    /// The caption of the tab; then, each after a '>', what else to go through: the label of a button that opens a
    /// dialog ("Group|Label" or "Label"), a row of a list ("Layer[0]"), a tab in that dialog. "" for a dialog without.
    std::string place;
    std::string group; ///< "" for none
    std::string label; ///< "" for none
    /// What is typed or chosen; "" for a click. With '|' in it: all rows of the list, the last of which is
    /// chosen. For a colour the kind or the red part, for a font the size, for an image the file.
    std::string give;
    std::string change; ///< "path=value", or "path" alone: any change below it
    Number number = {};
    bool seen = true; ///< whether the preview shows it

    std::string Path() const { return change.substr(0, change.find('=')); }
};
using Properties = std::vector<Property>;

inline Properties operator+(Properties all, const Properties& more) {
    all.insert(all.end(), more.begin(), more.end());
    return all;
}

inline const char* const kAlignments =
    "TopLeft|TopCenter(Top)|TopRight|Left|Center|Right|BottomLeft|BottomCenter(Bottom)|BottomRight|TopLeft2|"
    "TopRight2|BottomLeft2|BottomRight2";                  // the last stores 13, bottomRight2
inline const char* const kSides = "Left|Right|Top|Bottom"; // the last stores 2, bottom

inline std::string Capital(std::string name) {
    name[0] = static_cast<char>(std::toupper(name[0]));
    return name;
}

/// The path of a field of a look: "labelFont" with the prefix "label", "texts[0].font" with "texts[0].".
inline std::string LookField(const std::string& prefix, const std::string& name) {
    return prefix + (prefix.empty() || prefix.back() == '.' ? name : Capital(name));
}

/// The rows of the colour fields of a look, in one group: "BackColor:" for the field "backColor".
inline Properties ColorRows(const std::string& place, const std::string& group, const std::string& prefix,
                            const std::vector<std::string>& names) {
    Properties rows;
    for (const std::string& name : names) {
        const bool text = name == "fontColor"; // is drawn in one colour, whatever the kind
        rows.push_back({place, group, Capital(name) + ':', text ? "170" : "Metal",
                        LookField(prefix, name) + (text ? ".color" : ".type=metal")});
    }
    return rows;
}

inline Properties EffectRows(const std::string& place, const std::string& prefix) {
    const std::string path = LookField(prefix, "effect");
    return {{place, "Effect:", "Type:", "Flat|Raised|Depressed|SoftLighting|NormalGlare|ReduceGlare",
             path + ".effectType=reducedGlare"},
            {place, "Effect:", "Direction:", kSides, path + ".direction=bottom"},
            {place, "Effect:", "Size:", "9", path + ".value=9"}};
}

inline Properties LookRows(const std::string& place, const std::string& prefix) {
    return Properties{{place, "Font:", "", "31", LookField(prefix, "font") + ".size=31"}} +
           ColorRows(place, "Font:", prefix, {"fontColor", "backColor", "edgeColor"}) + EffectRows(place, prefix);
}

inline void GiveNumber(const Person& person, QWidget& spin, const Property& row) {
    const auto shown = [&] { return spin.findChild<QLineEdit*>()->text().toDouble(); };
    const Number& n = row.number;
    const auto limited = [&n](double value) { return std::clamp(value, n.floor, n.ceiling); };
    for (const bool up : {true, false, false}) {
        const double expected = limited(shown() + (up ? n.step : -n.step));
        person.Press(spin, up);
        EXPECT_NEAR(shown(), expected, 1e-9) << (up ? "up" : "down");
    }
    for (const double limit : {n.floor, n.ceiling}) {
        if (std::isfinite(limit)) {
            Type(&spin, QString::number(limit + (limit == n.floor ? -1 : 1)));
            person.Enter();
            EXPECT_TRUE(limited(shown()) == shown()) << "typed past " << limit;
            for (int i = 0; i < 2; ++i) person.Press(spin, limit != n.floor);
            EXPECT_TRUE(limited(shown()) == shown()) << "pressed past " << limit;
        }
    }
    Type(&spin, QString::fromStdString(row.give));
    person.Leave();
}

inline void GiveChoice(const Person& person, QComboBox& box, const Property& row) {
    const QStringList wanted = QString::fromStdString(row.give).split(u'|');
    QStringList rows;
    for (int i = 0; i < box.count(); ++i) rows += box.itemText(i);
    if (wanted.size() > 1) EXPECT_EQ(rows.join(u'|').toStdString(), row.give);
    const auto index = static_cast<int>(rows.indexOf(wanted.last()));
    EXPECT_GE(index, 0) << "no row " << row.give;
    person.Choose(box, index);
}

inline void GiveInPicker(const Person& picker, const QString& give) {
    if (picker.Window().windowTitle() == "Select Color") {
        auto& type = picker.Find<QComboBox>("Type");
        if (type.findText(give) >= 0)
            picker.Choose(type, type.findText(give));
        else
            picker.Give("R", give);
    } else if (picker.Window().windowTitle() == "Select Font") {
        picker.Give("Size", give);
    } else {
        auto* name = picker.Window().findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        Type(name, give);
        if (QWidget* suggestions = QApplication::activePopupWidget()) suggestions->close();
        return picker.Click(picker.Button({}, "Open"));
    }
    picker.Ok();
}

/// Gives the control of `row` what the row says, and leaves it.
inline void Give(const Person& person, const Property& row) {
    QWidget& control = person.At(QString::fromStdString(row.group), QString::fromStdString(row.label));
    const QString give = QString::fromStdString(row.give);
    if (qobject_cast<QAbstractSpinBox*>(&control) != nullptr && qobject_cast<QDateEdit*>(&control) == nullptr) {
        GiveNumber(person, control, row);
    } else if (auto* box = qobject_cast<QComboBox*>(&control)) {
        GiveChoice(person, *box, row);
    } else if (qobject_cast<QPushButton*>(&control) != nullptr) {
        person.In(
            control, [&](Person& picker) { GiveInPicker(picker, give); });
    } else if (qobject_cast<QAbstractButton*>(&control) != nullptr) {
        person.Click(control);
    } else {
        Type(&control, give);
        person.Leave();
    }
}

inline void LeaveByOk(Person& person) { person.Ok(); }

/// Goes to `place`, acts there, and comes back: the dialogs on the way are left by `leave`.
inline void Go(Person& person, const QString& place, const std::function<void(Person&)>& act,
               const std::function<void(Person&)>& leave = LeaveByOk) {
    const QString step = place.section(u'>', 0, 0).trimmed();
    const QString rest = place.section(u'>', 1);
    if (step.isEmpty()) return act(person);
    if (person.HasTab(step)) {
        person.Tab(step);
        return Go(person, rest, act, leave);
    }
    if (step.endsWith(u']')) {
        person.Select(step.section(u'[', 0, 0), step.section(u'[', 1).chopped(1).toInt());
        return Go(person, rest, act, leave);
    }
    const QString group = step.contains(u'|') ? step.section(u'|', 0, 0) : QString();
    person.In(person.Button(group, step.section(u'|', -1)), [&](Person& inner) {
        Go(inner, rest, act, leave);
        leave(inner);
    });
}

/// Tries every row, each beginning with `start`.
template <class Object> void TestProperties(const Object& start, const CChartLayout& layout, const Properties& rows) {
    const auto before = model::Values(start);
    for (const Property& row : rows) {
        SCOPED_TRACE(row.place + '/' + row.group + '/' + row.label + ' ' + row.give);
        Object object(start);
        EXPECT_TRUE(Edit(object, layout, [&](Person& person) {
            const QImage preview = person.Preview();
            Go(person, QString::fromStdString(row.place), [&](Person& there) { Give(there, row); });
            if (row.seen) EXPECT_FALSE(person.Preview() == preview) << "the preview does not show it";
            person.Ok();
        }));
        bool changed = false;
        std::string now;
        for (const auto& [path, from, to] : model::Differences(before, model::Values(object))) {
            const bool here =
                path == row.Path() || path.starts_with(row.Path() + '.') || path.starts_with(row.Path() + '[');
            EXPECT_TRUE(here) << path << ": " << from << " -> " << to;
            changed = changed || here;
            if (path == row.Path()) now = to;
        }
        EXPECT_TRUE(changed) << row.Path() << " has not changed";
        if (row.change.size() > row.Path().size()) EXPECT_EQ(now, row.change.substr(row.Path().size() + 1)) << "stored";
    }
}

/// Every control that shows a property has a row, and every row a control of its own; prints how many.
template <class Object> void TestTableIsWhole(const Object& start, const CChartLayout& layout, const Properties& rows) {
    const auto name = [](const Property& row) { return row.place + '>' + row.group + '>' + row.label; };
    std::set<std::string> places, told, found;
    for (const Property& row : rows) {
        places.insert(row.place);
        told.insert(name(row));
    }
    Object object(start);
    EXPECT_FALSE(Edit(object, layout, [&](Person& person) {
        std::map<QString, std::set<QString>> tabs; // that have rows, by the place of their dialog
        for (const std::string& place : places) {
            SCOPED_TRACE(place);
            const QString path = QString::fromStdString(place);
            Go(person, path, [&](const Person& there) {
                if (const QString last = path.section(u'>', -1); there.HasTab(last))
                    tabs[path.section(u'>', 0, -2)].insert(last);
                if (place.empty() && !there.Tabs().isEmpty())
                    return; // what stands beside the tabs is looked at with each of them
                const bool inDialog = place.find('>') == std::string::npos;
                std::map<QWidget*, const Property*> named;
                for (const Property& row : rows)
                    if (row.place == place || (row.place.empty() && inDialog))
                        named[&there.At(QString::fromStdString(row.group), QString::fromStdString(row.label))] = &row;
                for (const auto& [control, row] : named) found.insert(name(*row));
                for (QWidget* control : there.Inputs())
                    EXPECT_TRUE(named.contains(control)) << "no row for " << qPrintable(there.GroupOf(*control)) << '/'
                                                         << qPrintable(there.LabelOf(*control));
            });
        }
        for (const auto& [place, withRows] : tabs)
            Go(person, place, [&shown = withRows](const Person& there) {
                for (const QString& tab : there.Tabs())
                    EXPECT_TRUE(shown.contains(tab)) << "no row on " << qPrintable(tab);
            });
        person.Cancel();
    }));
    EXPECT_EQ(found, told) << "two rows for one control";
    std::cout << told.size() << " rows in the table, " << found.size() << " controls in the dialogs\n";
}
} // namespace driver
