#pragma once
// The strip at the foot of every editor dialog: steps back and forth, what has changed since the dialog was
// opened, the picture as it was then, and a search through all rows.

#include "editors/framework/history.h"
#include "editors/framework/spots.h"

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

class CChartPreviewView;
class CDialog;
class CStripButton;
class QLabel;
class QMenu;
struct CSearchRow;

/// What the strip asks of a dialog.
struct CStripParts {
    CChartPreviewView* preview = nullptr; ///< null for none
    std::shared_ptr<CWorkingCopy> edited; ///< never null
    std::function<void()> restored;       ///< shows what hangs on more than rows, after a step; may be null
};

/// It watches the events of the dialog, whose it is: the keys for all this work wherever the focus is, but an
/// edit whose text has not been committed keeps those for its own undo.
class CStrip : public QWidget {
public:
    explicit CStrip(CDialog& dialog);
    ~CStrip() override;

    /// Begins anew with what the dialog edits now.
    void Open(CStripParts parts);

    void Undo() { Step(true); }
    void Redo() { Step(false); }
    const CHistory& History() const { return *m_history; }

    /// What has changed since the dialog was opened, in the order of the fields.
    std::vector<model::Change> Changes() const { return m_history->SinceOpening(); }
    /// The same with their texts, those of one page beside each other.
    std::vector<std::pair<model::Change, CChangeText>> ToldChanges() const;
    /// Sets one of these back, as a step of its own.
    void Revert(const std::string& path);
    /// Shows the row of a path, gives it the focus and rings it.
    void Show(const std::string& path);
    /// All rows of the dialog that can show now, and of the dialogs that it opens.
    std::vector<CSearchRow> SearchRows();
    /// Opens the search; the list of changes.
    void Search();
    void ListChanges();
    /// While it is on, the preview shows the picture of what the host gave.
    void ShowBefore(bool on);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool KeyPressed(const QWidget& focus, int key, Qt::KeyboardModifiers held);
    void Committed();
    void Step(bool back);
    /// After the working copy has been changed other than by a control.
    void Reload();
    void ShowStates();
    /// `spots` are those of the present places; null if there is no change.
    void ShowDots(const std::vector<model::Change>& changes, const CSpots* spots);
    void Reveal(const std::string& path, bool focus);
    void RevealSpot(const CSpot& spot, bool focus);
    CFormRow* RowOf(const QWidget& widget) const;
    /// The path of the member that a row edits now; empty for none.
    std::string PathOf(const CFormRow& row) const;
    void AddSearchRows(const QString& opener, const std::function<void(const CSpotName&)>& goTo,
                       std::vector<CSearchRow>& rows);
    void GoTo(const CSpotName& name);
    /// Goes to the row that the search of another dialog has opened this one for, if it has.
    void GoToAwaited();
    /// Opens the menu of a row; false if there is nothing to offer.
    bool PopUpMenu(QWidget& control, const QPoint& place);
    void Copy();
    void Paste();
    /// One line beside the strip, for a while.
    void Say(const QString& line);

    CDialog& m_dialog;
    CStripParts m_parts;
    std::unique_ptr<CHistory> m_history;
    unsigned m_gesture = 1; ///< goes on with each press of a key or a button
    bool m_wheel = false;   ///< the present gesture is turns of the wheel
    CStripButton* m_undo;
    CStripButton* m_redo;
    CStripButton* m_changes;
    CStripButton* m_before;
    CStripButton* m_search;
    QLabel* m_said;
    bool m_showsBefore = false;
    std::vector<std::pair<QPointer<QWidget>, QString>>
        m_described; ///< changed controls, and what is said of them else
};
