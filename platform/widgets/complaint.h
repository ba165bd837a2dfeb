#pragma once
// What a dialog says when a text cannot be read, and that nothing else happens then: whatever took the focus
// away from the text, a press, a letter or a screen reader, does nothing at all.

#include <QObject>
#include <QString>
#include <functional>

class QAbstractButton;
class QWidget;

/// A warning box about a text in a window. It stands beside the flow of events: raising it returns at once,
/// so that the press of a button is never left hanging in a loop of the box. It belongs to the window.
class CComplaint : public QObject {
public:
    /// Opens the box over `window` with the window's caption. `select` leads the person back to the text when
    /// the box has been closed. `pressed` says that a press of the mouse took the focus: nobody gets that
    /// press, and the box waits until it is over. With a complaint open already this does nothing.
    static void Raise(QWidget& window, const QString& text, std::function<void()> select, bool pressed);
    /// Whether a complaint waits or is open over the window.
    static bool Stands(const QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CComplaint(QWidget& window, const QString& text, std::function<void()> select, bool pressed);
    void OpenSoon();
    void Open();
    void Close();

    QString m_text;
    std::function<void()> m_select;
    bool m_down = false; ///< a button of the mouse, or a finger
    bool m_open = false;
};

/// Moves the focus to `control`, so that the edit that had it commits. False if its text cannot be read, or a
/// complaint stands: then what `control` was to do must not be done.
bool TakeFocus(QWidget& control);

/// Calls `act` when `button` has been clicked, by whatever way, and the focused edit has committed.
void WhenClicked(QAbstractButton& button, std::function<void()> act);
