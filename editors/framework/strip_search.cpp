// The search through the rows of a dialog and of the dialogs that it opens.

#include "editors/framework/search.h"

#include "editors/framework/strip.h"
#include "editors/framework/strip_button.h"
#include "platform/widgets/scout.h"
#include "platform/widgets/simple_combo.h"

#include <QRadioButton>
#include <algorithm>
#include <utility>

namespace {

constexpr int kMostLookedInto = 12; // of a list of objects

/// The row to show in the dialog that opens next.
std::optional<CSpotName>& NextRow() {
    static std::optional<CSpotName> next;
    return next;
}

bool Same(const CSpotName& one, const CSpotName& other) {
    return one.page == other.page && one.group == other.group && one.label == other.label;
}

CStrip* StripOf(const CDialog& dialog) {
    for (QObject* child : dialog.children())
        if (auto* strip = dynamic_cast<CStrip*>(child))
            return strip;
    return nullptr;
}

/// Calls `visit` for all rows of a form, also those that a field is made of.
void EachRow(const CForm& form, const std::function<void(const CSpot&)>& visit) {
    form.EachControl([&](const QWidget& control) {
        const auto* field = dynamic_cast<const CDialog*>(&control);
        if (const auto* inner = field == nullptr ? nullptr : dynamic_cast<const CForm*>(field->Controls()))
            EachRow(*inner, visit);
        CSpot spot;
        spot.control = const_cast<QWidget*>(&control);
        spot.row = form.RowOf(control);
        visit(spot);
        for (QRadioButton* choice : control.findChildren<QRadioButton*>()) // each has a label of its own
            visit({.control = choice});
    });
}

/// All rows of a dialog, whether or not there is an item that they show now, its lists and its buttons to
/// other dialogs.
void EachPlace(CDialog& dialog, const std::function<void(const CSpot&)>& visit) {
    for (const CForm* form : FormsOf(dialog)) {
        EachRow(*form, visit);
        form->EachSpot([&visit](const CSpot& spot) {
            if (spot.row == nullptr)
                visit(spot);
        });
    }
}

/// Opens the dialog that a place leads to, as a person does; false if it leads to none.
bool OpenDialogOf(const CSpot& spot) {
    if (auto* button = qobject_cast<QAbstractButton*>(spot.control)) {
        button->click();
        return true;
    }
    if (spot.row != nullptr || spot.list == nullptr || spot.list->Selected() < 0)
        return false;
    emit spot.list->Combo().DoubleClicked(spot.list->Selected());
    return true;
}

} // namespace

void CStrip::GoToAwaited() {
    if (!NextRow() || CScout::Present() != nullptr)
        return;
    const CSpotName name = *std::exchange(NextRow(), std::nullopt);
    QMetaObject::invokeMethod(
        this, [this, name] { GoTo(name); }, Qt::QueuedConnection); // when it shows
}

void CStrip::Search() {
    CSearch::Open(*this, *m_search);
}

void CStrip::AddSearchRows(const QString& opener, const std::function<void(const CSpotName&)>& goTo,
                           std::vector<CSearchRow>& rows) {
    const std::ptrdiff_t first = std::ssize(rows);
    const auto add = [&](const CSpot& spot, const QString& value) {
        CSpotName name = NameOf(spot);
        if (!CanShow(*spot.control) || name.label.isEmpty())
            return;
        name.before = static_cast<int>(std::count_if(
            rows.begin() + first, rows.end(), [&](const CSearchRow& row) { return Same(row.name, name); }));
        rows.push_back({name, value, opener, [goTo, name] { goTo(name); }});
    };
    EachPlace(m_dialog, [&](const CSpot& spot) {
        const CMember member = spot.row == nullptr ? CMember() : spot.row->Member(-1);
        add(spot, member.address == nullptr ? QString() : spot.row->TextAt(member.address).left(40));
    });
}

std::vector<CSearchRow> CStrip::SearchRows() {
    std::vector<CSearchRow> rows;
    AddSearchRows(
        {}, [this](const CSpotName& name) { GoTo(name); }, rows);
    // The dialogs that open from here are looked into one after the other.
    const QPointer<QWidget> focus = m_dialog.focusWidget();
    for (const CForm* form : FormsOf(m_dialog)) {
        std::vector<CSpot> openers;
        form->EachSpot([&openers](const CSpot& spot) {
            if (spot.row == nullptr && CanShow(*spot.control) && spot.control->isEnabled())
                openers.push_back(spot);
        });
        for (const CSpot& opener : openers) {
            const int selected = opener.list == nullptr ? -1 : opener.list->Selected();
            const int items = opener.list == nullptr ? 1 : std::min(opener.list->Count(), kMostLookedInto);
            for (int item = 0; item < items; ++item) {
                if (opener.list != nullptr)
                    opener.list->Select(item);
                const CScout scout([&](CDialog& dialog) {
                    CStrip* strip = StripOf(dialog);
                    if (strip == nullptr)
                        return;
                    const CSpotName by = NameOf(opener);
                    const QString told = opener.list == nullptr ? by.label
                                                                : by.Place() + QStringLiteral(" \u203a ") +
                                                                      opener.list->CaptionOf(item);
                    strip->AddSearchRows(
                        opener.list == nullptr ? by.Place() + QStringLiteral(" \u203a ") + told : told,
                        [this, opener, item](const CSpotName& name) {
                            CSpot there = opener;
                            there.item = item;
                            RevealSpot(there, true);
                            NextRow() = name;
                            if (opener.list != nullptr)
                                opener.list->Select(item);
                            OpenDialogOf(opener);
                            NextRow().reset(); // whatever came of it
                        },
                        rows);
                });
                if (!OpenDialogOf(opener))
                    break;
            }
            if (opener.list != nullptr && opener.list->Selected() != selected)
                opener.list->Select(selected);
        }
    }
    if (focus != nullptr)
        focus->setFocus();
    return rows;
}

void CStrip::GoTo(const CSpotName& name) {
    std::optional<CSpot> found;
    int before = 0;
    const auto look = [&](const CSpot& spot) {
        if (!found && CanShow(*spot.control) && Same(NameOf(spot), name) && before++ == name.before)
            found = spot;
    };
    EachPlace(m_dialog, look);
    if (found)
        RevealSpot(*found, true);
}
