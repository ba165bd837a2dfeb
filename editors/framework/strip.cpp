#include "editors/framework/strip.h"

#include "editors/framework/change_list.h"
#include "editors/framework/page_marks.h"
#include "editors/framework/strip_button.h"
#include "editors/preview/chart_preview_view.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/field_changed.h"
#include "platform/widgets/simple_combo.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTimer>
#include <algorithm>
#include <map>
#include <optional>
#include <utility>

namespace {

constexpr int kWide = 10; // pixels between the groups of buttons

bool IsUndo(int key, Qt::KeyboardModifiers held) {
    return key == Qt::Key_Z && held == Qt::ControlModifier;
}

bool IsRedo(int key, Qt::KeyboardModifiers held) {
    return (key == Qt::Key_Z && held == (Qt::ControlModifier | Qt::ShiftModifier)) ||
           (key == Qt::Key_Y && held == Qt::ControlModifier);
}

/// The text edit of a row, whose menu has entries of its own; null for none.
QMenu* StandardMenu(QWidget& control) {
    if (auto* line = qobject_cast<QLineEdit*>(&control))
        return line->createStandardContextMenu();
    if (auto* lines = qobject_cast<QPlainTextEdit*>(&control))
        return lines->createStandardContextMenu();
    if (auto* spin = qobject_cast<QAbstractSpinBox*>(&control))
        return spin->findChild<QLineEdit*>()->createStandardContextMenu();
    return nullptr;
}

constexpr const char* kLookFormat = "application/x-chart-style+json";

/// Whether the text in an edit has not been committed; it may be one of the rows that a field is made of.
bool IsUncommitted(const QWidget& focus) {
    for (const QWidget* above = &focus; above != nullptr; above = above->parentWidget())
        if (const auto* page = dynamic_cast<const CDialog*>(above))
            if (const auto* form = dynamic_cast<const CForm*>(page->Controls())) {
                const CFormRow* row = form->RowOf(focus);
                return row != nullptr && row->Uncommitted();
            }
    return false;
}

} // namespace

CStrip::CStrip(CDialog& dialog)
    : QWidget(&dialog), m_dialog(dialog),
      m_undo(new CStripButton(CStripButton::Undo, QStringLiteral("Undo"), this)),
      m_redo(new CStripButton(CStripButton::Redo, QStringLiteral("Redo"), this)),
      m_changes(new CStripButton(CStripButton::Changes, QStringLiteral("Changes"), this)),
      m_before(new CStripButton(CStripButton::Before, QStringLiteral("Before"), this)),
      m_search(new CStripButton(CStripButton::Search, QStringLiteral("Search"), this)),
      m_said(new QLabel(this)) {
    setObjectName(QStringLiteral("Strip"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_undo);
    row->addWidget(m_redo);
    row->addSpacing(kWide);
    row->addWidget(m_changes);
    row->addSpacing(kWide);
    row->addWidget(m_before);
    row->addWidget(m_search);
    row->addSpacing(kWide);
    row->addWidget(m_said, 1);
    m_said->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // it takes what is left
    m_said->setTextFormat(Qt::PlainText);
    m_changes->SetWidestCaption(QStringLiteral("No changes"));
    m_before->setToolTip(QStringLiteral("Hold to see the picture as it was (F9)"));
    m_before->setAccessibleDescription(m_before->toolTip());
    m_search->setToolTip(QStringLiteral("Search all rows (Ctrl+F)"));
    m_search->setAccessibleDescription(m_search->toolTip());
    WhenClicked(
        *m_undo, [this] { Undo(); });
    WhenClicked(
        *m_redo, [this] { Redo(); });
    WhenClicked(
        *m_changes, [this] { ListChanges(); });
    WhenClicked(
        *m_search, [this] { Search(); });
    connect(
        m_before, &QAbstractButton::pressed, this, [this] { ShowBefore(true); });
    connect(m_before, &QAbstractButton::released, this, [this] { ShowBefore(false); });
    qApp->installEventFilter(this);
}

CStrip::~CStrip() = default;

void CStrip::Open(CStripParts parts) {
    m_parts = std::move(parts);
    m_history = std::make_unique<CHistory>(*m_parts.edited);
    m_before->setVisible(m_parts.preview != nullptr);
    m_showsBefore = false;
    ShowStates();
    GoToAwaited();
}

// ---- Events

bool CStrip::eventFilter(QObject* watched, QEvent* event) {
    switch (static_cast<int>(event->type())) {
    case CCommittedEvent::kType:
        if (watched == &m_dialog)
            Committed();
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        ++m_gesture;
        m_wheel = false;
        return false;
    case QEvent::Wheel:
        m_gesture += m_wheel ? 0 : 1;
        m_wheel = true;
        return false;
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        break;
    case QEvent::WindowDeactivate:
        if (watched == &m_dialog)
            ShowBefore(false);
        return false;
    case QEvent::Resize: // the picture of then was of another size
        if (watched == m_parts.preview)
            ShowBefore(false);
        return false;
    default:
        return false;
    }
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget == nullptr || widget->window() != &m_dialog)
        return false;
    if (event->type() == QEvent::ContextMenu)
        return PopUpMenu(*widget, static_cast<QContextMenuEvent*>(event)->globalPos());
    const auto& key = static_cast<const QKeyEvent&>(*event);
    if (event->type() == QEvent::KeyRelease) {
        if (key.key() == Qt::Key_F9 && !key.isAutoRepeat())
            ShowBefore(false);
        return key.key() == Qt::Key_F9;
    }
    m_gesture += key.isAutoRepeat() ? 0 : 1;
    m_wheel = false;
    return KeyPressed(*widget, key.key(), key.modifiers() & ~Qt::KeypadModifier);
}

bool CStrip::KeyPressed(const QWidget& focus, int key, Qt::KeyboardModifiers held) {
    if (IsUndo(key, held) || IsRedo(key, held)) {
        if (IsUncommitted(focus))
            return false;
        if (!CComplaint::Stands(m_dialog))
            Step(IsUndo(key, held));
        return true;
    }
    if (key == Qt::Key_F9 && held == Qt::NoModifier) {
        ShowBefore(true);
        return true;
    }
    if (key == Qt::Key_F && held == Qt::ControlModifier) {
        m_search->click();
        return true;
    }
    const bool onPreview = m_parts.preview != nullptr && &focus == m_parts.preview;
    if (onPreview && held == Qt::ControlModifier && (key == Qt::Key_C || key == Qt::Key_V)) {
        if (key == Qt::Key_C)
            Copy();
        else
            Paste();
        return true;
    }
    return false;
}

CFormRow* CStrip::RowOf(const QWidget& widget) const {
    for (const CForm* form : FormsOf(m_dialog))
        if (CFormRow* row = form->RowOf(widget))
            return row;
    return nullptr;
}

// ---- Steps

void CStrip::Committed() {
    if (m_history == nullptr || !m_dialog.isVisible())
        return;
    m_history->Commit(m_gesture);
    ShowStates(); // without a change too: another item of a list may have become the current one
}

void CStrip::Step(bool back) {
    if (back ? !m_history->CanUndo() : !m_history->CanRedo())
        return;
    const std::string path = (back ? m_history->UndoStep() : m_history->RedoStep()).front().path;
    const bool byButton = m_undo->hasFocus() || m_redo->hasFocus();
    if (back)
        m_history->Undo();
    else
        m_history->Redo();
    Reload();
    Reveal(path, !byButton);
}

void CStrip::Reload() {
    for (CForm* form : FormsOf(m_dialog))
        form->Reload();
    if (m_parts.restored)
        m_parts.restored();
    if (m_parts.preview != nullptr)
        m_parts.preview->RefreshPreview();
    ShowStates();
}

void CStrip::Revert(const std::string& path) {
    m_parts.edited->Take(path, m_history->Opening());
    m_history->Commit(0);
    Reload();
}

/// "Undo Depth: 1 to 5".
static QString TipOf(const char* verb, const std::vector<model::Change>& changes, const CSpots& spots,
                     const model::Places& from, const model::Places& to) {
    QString tip = QString::fromUtf8(verb) + u' ' + TextOf(changes.front(), spots, from, to).Line();
    if (changes.size() > 1)
        tip += QStringLiteral(" and %1 more").arg(changes.size() - 1);
    return tip;
}

void CStrip::ShowStates() {
    const bool canUndo = m_history->CanUndo();
    const bool canRedo = m_history->CanRedo();
    const auto show = [](CStripButton& button, bool can, const QString& tip, const char* key) {
        button.setEnabled(can);
        button.setToolTip(can ? tip + QString::fromUtf8(key) : QString());
        button.setAccessibleDescription(tip);
    };
    const CWorkingCopy& copy = *m_parts.edited;
    const model::Places& now = m_history->Places();
    const std::vector<model::Change> changes = Changes();
    std::optional<CSpots> spots;
    if (canUndo || canRedo || !changes.empty())
        spots.emplace(m_dialog, now);
    QString undo, redo;
    if (canUndo)
        undo = TipOf("Undo", m_history->UndoStep(), *spots, copy.PlacesOf(m_history->BeforeStep()), now);
    if (canRedo)
        redo = TipOf("Redo", m_history->RedoStep(), *spots, now, copy.PlacesOf(m_history->AfterStep()));
    show(*m_undo, canUndo, undo, " (Ctrl+Z)");
    show(*m_redo, canRedo, redo, " (Ctrl+Shift+Z)");
    const std::size_t count = changes.size();
    m_changes->SetCaption(count == 0   ? QStringLiteral("No changes")
                          : count == 1 ? QStringLiteral("1 change")
                                       : QStringLiteral("%1 changes").arg(count));
    m_changes->setEnabled(count != 0);
    m_before->setEnabled(count != 0);
    ShowDots(changes, spots ? &*spots : nullptr);
}

// ---- Changes

std::vector<std::pair<model::Change, CChangeText>> CStrip::ToldChanges() const {
    const model::Places now = m_parts.edited->Places();
    const CSpots spots(m_dialog, now);
    std::vector<std::pair<model::Change, CChangeText>> told;
    for (const model::Change& change : Changes()) {
        CChangeText text = TextOf(change, spots, m_history->OpeningPlaces(), now);
        // The pages come in the order of their first change, with all of theirs.
        const auto after = std::find_if(
            told.rbegin(), told.rend(),
            [&text](const auto& before) { return before.second.name.Place() == text.name.Place(); });
        const auto page = std::find_if(told.rbegin(), told.rend(), [&text](const auto& before) {
            return before.second.name.page == text.name.page;
        });
        const auto place = after != told.rend()  ? after.base()
                           : page != told.rend() ? page.base()
                                                 : told.end();
        text.spot = nullptr; // which ends with `spots`
        told.insert(place, {change, std::move(text)});
    }
    return told;
}

void CStrip::ShowDots(const std::vector<model::Change>& changes, const CSpots* spots) {
    std::map<CPageMarks*, std::vector<QWidget*>> dots;
    for (CPageMarks* marks : CPageMarks::AllIn(m_dialog))
        dots[marks];
    for (const auto& [control, told] : m_described)
        if (control != nullptr)
            control->setAccessibleDescription(told);
    m_described.clear();
    if (!changes.empty()) {
        const auto mark = [&](QWidget& control, QWidget* label, const QString& was) {
            QWidget* anchor = label != nullptr ? label : &control;
            std::vector<QWidget*>& anchors = dots[&CPageMarks::Of(control)];
            if (std::find(anchors.begin(), anchors.end(), anchor) == anchors.end())
                anchors.push_back(anchor);
            QWidget* focus = control.focusProxy() != nullptr ? control.focusProxy() : &control;
            const QString told = focus->accessibleDescription();
            m_described.emplace_back(focus, told);
            focus->setAccessibleDescription((told.isEmpty() ? told : told + QStringLiteral("; ")) + was);
        };
        for (const model::Change& change : changes) {
            const CChangeText text = TextOf(change, *spots, m_history->OpeningPlaces(), m_history->Places());
            if (text.spot == nullptr)
                continue;
            const CSpot& spot = *text.spot;
            const bool shows =
                spot.list == nullptr || spot.row == nullptr || spot.item == spot.list->Selected();
            if (spot.row != nullptr && shows)
                mark(*spot.control, spot.row->Label(), QStringLiteral("changed, was ") + text.from);
            if (spot.list != nullptr || spot.row == nullptr)
                mark(spot.list != nullptr ? spot.list->Combo() : *spot.control, nullptr,
                     QStringLiteral("changed"));
        }
    }
    for (auto& [marks, anchors] : dots)
        marks->SetDots(std::move(anchors));
}

void CStrip::ListChanges() {
    if (!Changes().empty())
        CChangeList::Open(*this, *m_changes);
}

void CStrip::Show(const std::string& path) {
    Reveal(path, true);
}

void CStrip::Reveal(const std::string& path, bool focus) {
    const CSpots spots(m_dialog, m_parts.edited->Places());
    const CSpots::Found found = spots.Find(path);
    if (found.spot == nullptr)
        return;
    CSpot spot = *found.spot;
    spot.item = found.item;
    RevealSpot(spot, focus);
}

void CStrip::RevealSpot(const CSpot& spot, bool focus) {
    if (!ShowSpot(spot))
        return;
    QWidget* target = spot.control;
    if (target->focusPolicy() == Qt::NoFocus && target->focusProxy() == nullptr)
        for (QWidget* part : target->findChildren<QWidget*>()) // of several controls the first
            if ((part->focusPolicy() & Qt::TabFocus) != 0 && part->isEnabled()) {
                target = part;
                break;
            }
    if (focus)
        target->setFocus(Qt::OtherFocusReason);
    CPageMarks::Of(*spot.control).Ring(*spot.control);
}

std::string CStrip::PathOf(const CFormRow& row) const {
    const CMember member = row.Member(-1);
    for (const model::Place& place : m_parts.edited->Places())
        if (member.address != nullptr && place.address == member.address && place.type == member.type)
            return place.path;
    return {};
}

bool CStrip::PopUpMenu(QWidget& control, const QPoint& place) {
    CFormRow* row = RowOf(control);
    if (row == nullptr || !row->Control()->isEnabled() || IsUncommitted(control))
        return false;
    const std::string path = PathOf(*row);
    const model::Places now = m_parts.edited->Places();
    const model::Place* here = model::FindPlace(now, path);
    if (path.empty() || here == nullptr)
        return false;
    QMenu* menu = StandardMenu(*row->Control());
    if (menu == nullptr)
        menu = new QMenu;
    else
        menu->addSeparator();
    menu->setParent(&m_dialog, Qt::Popup);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString is = row->TextAt(here->address);
    const std::vector<model::Change> changes = Changes();
    const auto change = std::find_if(changes.begin(), changes.end(),
                                     [&path](const model::Change& each) { return each.path == path; });
    if (change != changes.end()) {
        const CChangeText text = TextOf(*change, CSpots(m_dialog, now), m_history->OpeningPlaces(), now);
        menu->addAction(QStringLiteral("Back to ") + text.from, this, [this, path] { Revert(path); });
    }
    if (const QString fresh = row->FreshText(); !fresh.isNull()) {
        QAction* action = menu->addAction(QStringLiteral("Default (%1)").arg(fresh), this, [this, row] {
            row->TakeFresh();
            m_history->Commit(0);
            Reload();
        });
        action->setEnabled(fresh != is);
    } else {
        const CWorkingCopy::Kept kept = m_parts.edited->Fresh();
        const model::Places places = m_parts.edited->PlacesOf(kept);
        if (const model::Place* there = model::FindPlace(places, path)) {
            const QString text = row->TextAt(there->address);
            QAction* action =
                menu->addAction(QStringLiteral("Default (%1)").arg(text), this, [this, path, kept] {
                    m_parts.edited->Take(path, kept);
                    m_history->Commit(0);
                    Reload();
                });
            action->setEnabled(text != is);
        }
    }
    menu->popup(place);
    return true;
}

// ---- Before

void CStrip::ShowBefore(bool on) {
    CChartPreviewView* view = m_parts.preview;
    if (view == nullptr || on == m_showsBefore || (on && Changes().empty()))
        return;
    m_showsBefore = on;
    view->SetCaption(on ? QStringLiteral("Before") : QString());
    if (!on)
        return view->RefreshPreview();
    // The picture is drawn of the object as it was, which goes back at once: whatever is edited meanwhile
    // goes to the one that is edited.
    const CWorkingCopy::Kept now = m_parts.edited->Keep();
    m_parts.edited->Restore(m_history->Opening());
    view->DrawNow();
    m_parts.edited->Restore(now);
}

// ---- The look as a text

void CStrip::Copy() {
    const QByteArray look = m_parts.edited->Look();
    if (look.isEmpty())
        return;
    auto* mime = new QMimeData;
    mime->setData(QString::fromUtf8(kLookFormat), look);
    mime->setText(QString::fromUtf8(look));
    QGuiApplication::clipboard()->setMimeData(mime);
    Say(QStringLiteral("Copied the look of this chart."));
}

void CStrip::Paste() {
    const QMimeData* mime = QGuiApplication::clipboard()->mimeData();
    const QString format = QString::fromUtf8(kLookFormat);
    if (mime == nullptr || m_parts.edited->Look().isEmpty())
        return;
    const QString said =
        m_parts.edited->TakeLook(mime->hasFormat(format) ? mime->data(format) : mime->text().toUtf8());
    if (m_history->Commit(0))
        Reload();
    Say(said);
}

void CStrip::Say(const QString& line) {
    m_said->setText(line);
    m_said->setToolTip(line);
    m_said->setAccessibleName(line);
    QAccessibleEvent alert(m_said, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    constexpr int kMilliseconds = 8000;
    QTimer::singleShot(kMilliseconds, m_said, [label = m_said, line] {
        if (label->text() == line)
            label->clear();
    });
}
