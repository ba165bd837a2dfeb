#pragma once
// The one message of the framework: a field or page tells the window above it that a value has changed. It is
// delivered at once: when the sender goes on, the model is up to date and the preview marked stale.

#include <QEvent>

class QWidget;

/// Carries the key of the field that changed, or 0.
class CFieldChangedEvent : public QEvent {
public:
    static constexpr auto kType = static_cast<QEvent::Type>(0x401);

    explicit CFieldChangedEvent(int key) : QEvent(kType), m_key(key) {}
    int Key() const { return m_key; }

private:
    int m_key;
};

/// A change has come to its end: stored, told, and shown. Sent to the window of the page.
class CCommittedEvent : public QEvent {
public:
    static constexpr auto kType = static_cast<QEvent::Type>(0x402);

    CCommittedEvent() : QEvent(kType) {}
};

/// Sends the message to `target`, null for nobody. Keys other than a field's: 0 a plain change.
void SendFieldChanged(QWidget* target, int key);
