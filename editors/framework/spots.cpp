#include "editors/framework/spots.h"

#include "editors/framework/page_tabs.h"
#include "platform/widgets/simple_combo.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QScrollArea>
#include <QSet>
#include <QStackedWidget>
#include <QTabWidget>

namespace {

void CollectForms(QWidget& widget, std::vector<CForm*>& forms, QSet<const QWidget*>& fields) {
    if (auto* page = dynamic_cast<CDialog*>(&widget)) {
        if (auto* form = dynamic_cast<CForm*>(page->Controls())) {
            forms.push_back(form);
            form->EachControl([&fields](const QWidget& control) { fields.insert(&control); });
        }
    }
    for (QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (!child->isWindow() && !fields.contains(child))
            CollectForms(*child, forms, fields);
}

QString Plain(QString caption) {
    caption.remove(u'&');
    return caption.endsWith(u':') ? caption.chopped(1) : caption;
}

/// "lineWidth" as "Line Width", "title.font" as "Title Font".
QString InWords(const std::string& path) {
    QString words;
    bool begins = true;
    for (const char letter : path) {
        const QChar c = QLatin1Char(letter);
        if (c == u'.' || c == u']') {
            begins = true;
        } else if (c == u'[') {
            words += u' ';
        } else if (begins || c.isUpper()) {
            words +=
                (words.isEmpty() || words.endsWith(u' ') ? QString() : QStringLiteral(" ")) + c.toUpper();
            begins = false;
        } else {
            words += c;
        }
    }
    return words;
}

/// Long texts by their beginning.
QString Short(const QString& text) {
    constexpr qsizetype kMost = 40;
    const QString line = QString(text).replace(u'\n', u' ');
    return line.size() > kMost ? line.left(kMost - 3) + QStringLiteral("...") : line;
}

} // namespace

std::vector<CForm*> FormsOf(CDialog& dialog) {
    for (CPageTabs* tabs : dialog.findChildren<CPageTabs*>())
        tabs->Complete();
    std::vector<CForm*> forms;
    QSet<const QWidget*> fields;
    CollectForms(dialog, forms, fields);
    return forms;
}

QString CSpotName::Place() const {
    QStringList parts{page, group, item};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" \u203a "));
}

CSpotName NameOf(const CSpot& spot) {
    CSpotName name;
    const QWidget* below = spot.control;
    for (const QWidget* above = below; above != nullptr && !above->isWindow();
         above = above->parentWidget()) {
        if (const auto* box = qobject_cast<const QGroupBox*>(above); box != nullptr && name.group.isEmpty())
            name.group = Plain(box->title());
        if (const auto* tabs = qobject_cast<const QTabWidget*>(above))
            name.page = Plain(tabs->tabText(tabs->indexOf(const_cast<QWidget*>(below))));
        if (qobject_cast<const QStackedWidget*>(above->parentWidget()) != nullptr)
            below = above;
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(spot.control);
        button != nullptr && !spot.row)
        name.label = Plain(button->text()).remove(QStringLiteral(" ...")).trimmed();
    else
        name.label = Plain(spot.control->objectName());
    if (spot.list != nullptr && spot.item >= 0)
        name.item = spot.list->CaptionOf(spot.item);
    if (name.label == name.group)
        name.group.clear();
    return name;
}

bool CanShow(const QWidget& control) {
    const QWidget* below = &control;
    for (const QWidget* above = below->parentWidget(); above != nullptr; above = above->parentWidget()) {
        const auto* stack = qobject_cast<const QStackedWidget*>(above);
        const bool tabs =
            stack != nullptr && qobject_cast<const QTabWidget*>(above->parentWidget()) != nullptr;
        if (stack != nullptr && !tabs && stack->currentWidget() != below)
            return false;
        below = above;
    }
    return true;
}

bool ShowSpot(const CSpot& spot) {
    QWidget* below = spot.control;
    for (QWidget* above = below; above != nullptr && !above->isWindow(); above = above->parentWidget()) {
        if (auto* tabs = qobject_cast<QTabWidget*>(above))
            tabs->setCurrentWidget(below);
        if (qobject_cast<QStackedWidget*>(above->parentWidget()) != nullptr)
            below = above;
    }
    if (spot.list != nullptr && spot.item >= 0)
        spot.list->Select(spot.item);
    for (QWidget* above = spot.control->parentWidget(); above != nullptr; above = above->parentWidget())
        if (auto* scrolls = qobject_cast<QScrollArea*>(above))
            scrolls->ensureWidgetVisible(spot.control);
    return spot.control->isVisible();
}

CSpots::CSpots(CDialog& dialog, const model::Places& places) {
    // Members of one address are told apart by their type, objects from their first member.
    std::unordered_multimap<const void*, const model::Place*> byAddress;
    byAddress.reserve(places.size());
    for (const model::Place& place : places)
        byAddress.emplace(place.address, &place);
    for (const CForm* form : FormsOf(dialog)) {
        form->EachSpot([&](const CSpot& spot) {
            const auto [begin, end] = byAddress.equal_range(spot.member.address);
            for (auto place = begin; place != end; ++place)
                if (place->second->type == spot.member.type &&
                    m_byPath.emplace(place->second->path, m_spots.size()).second) {
                    m_spots.push_back(spot);
                    break;
                }
        });
    }
}

CSpots::Found CSpots::Find(const std::string& path) const {
    for (std::string above = path; !above.empty();) {
        if (const auto found = m_byPath.find(above); found != m_byPath.end()) {
            const CSpot& spot = m_spots[found->second];
            std::string rest = path.substr(above.size());
            if (rest.empty())
                return {&spot, {}, spot.item};
            int item = spot.item;
            if (spot.row == nullptr && spot.list != nullptr && rest.front() == '[') {
                item = std::atoi(rest.c_str() + 1);
                rest.erase(0, rest.find(']') + 1);
            }
            return {&spot, InWords(rest), item};
        }
        const std::size_t cut = above.find_last_of(".[");
        above.resize(cut == std::string::npos ? 0 : cut);
    }
    return {nullptr, InWords(path), -1};
}

QString CChangeText::Line() const {
    const QString what = name.item.isEmpty() ? name.label : name.item + u' ' + name.label;
    return QStringLiteral("%1: %2 to %3").arg(what, from, to);
}

CChangeText TextOf(const model::Change& change, const CSpots& spots, const model::Places& from,
                   const model::Places& to) {
    CChangeText text{{}, QString::fromStdString(change.from), QString::fromStdString(change.to)};
    const CSpots::Found found = spots.Find(change.path);
    text.spot = found.spot;
    text.shows = found.spot != nullptr;
    text.item = found.item;
    if (found.spot == nullptr) {
        text.name.label = found.rest;
    } else {
        text.name = NameOf(*found.spot);
        const bool items = found.spot->row == nullptr && found.spot->list != nullptr;
        if (items && found.item >= 0) { // what an item's own dialog edits
            text.name.item =
                found.item < found.spot->list->Count() ? found.spot->list->CaptionOf(found.item) : QString();
            text.name.label = found.rest.isEmpty() ? QStringLiteral("Kind") : found.rest;
        } else if (!found.rest.isEmpty()) {
            text.name.item = text.name.label;
            text.name.label = found.rest;
        } else if (items) {
            text.from += text.from == u"1" ? QStringLiteral(" item") : QStringLiteral(" items");
            text.to += text.to == u"1" ? QStringLiteral(" item") : QStringLiteral(" items");
        }
    }
    if (found.spot != nullptr && found.spot->row != nullptr && found.rest.isEmpty()) {
        const model::Place* before = model::FindPlace(from, change.path);
        const model::Place* after = model::FindPlace(to, change.path);
        const QString was = before == nullptr ? QString() : found.spot->row->TextAt(before->address);
        const QString is = after == nullptr ? QString() : found.spot->row->TextAt(after->address);
        if (was != is) { // else the control tells less than the model holds
            text.from = was;
            text.to = is;
        }
    }
    text.from = Short(text.from.isEmpty() ? QStringLiteral("none") : text.from);
    text.to = Short(text.to.isEmpty() ? QStringLiteral("none") : text.to);
    return text;
}
