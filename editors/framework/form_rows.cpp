#include "editors/framework/form_rows.h"

#include "editors/framework/form.h"

#include <QEvent>
#include <QFocusEvent>

namespace {

/// Tells when a control has lost the focus, other than to its own menu.
class CFocusWatch : public QObject {
public:
    CFocusWatch(QWidget* watched, std::function<void(bool forAnotherWindow)> leave)
        : m_leave(std::move(leave)) {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::FocusOut)
            return false;
        // The control does its own part first: to leave can bring the focus back to it.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        watched->event(event);
        if (reason != Qt::PopupFocusReason)
            m_leave(reason == Qt::ActiveWindowFocusReason);
        return true;
    }

private:
    std::function<void(bool)> m_leave;
};

} // namespace

void CFormRow::SetEnabled(bool enabled) {
    Control()->setEnabled(enabled);
    if (m_label != nullptr)
        m_label->setEnabled(enabled);
}

void CFormRow::SetName(const QString& name) {
    Control()->setObjectName(name);
    Control()->setAccessibleName(name);
}

void CFormRow::ShowState() {
    if (m_enabledIf)
        SetEnabled(m_enabledIf());
}

QString CFormRow::Name() const {
    return Control()->objectName();
}

QWidget* CFormRow::Page() const {
    return &m_form.Page();
}

void CFormRow::Chosen() {
    if (m_validated ? m_form.UpdateDataSafe() : (m_form.Page().UpdateData(true), Exchange(true)))
        StoreAndTell();
}

void CFormRow::StoreAndTell(bool tell) {
    if (Store()) {
        m_form.ShowStates();
        if (tell)
            m_form.Notify();
        Afterwards();
    }
}

bool CEditRow::CommitIfIn(const QWidget* focus) {
    if (focus != Control())
        return false;
    Commit(true);
    return true;
}

void CEditRow::Watch(QWidget* control) {
    m_watch = std::make_unique<CFocusWatch>(
        control, [this](bool forAnotherWindow) { Leave(forAnotherWindow); });
}

void CEditRow::Written() {
    if (m_settling) {
        m_settled = ControlText();
        m_settling = false;
    }
}

void CEditRow::Commit(bool tell) {
    if (Form().UpdateDataSafe()) {
        if (!m_regardless) {
            Settle();
            Form().Page().UpdateData(false);
        }
    } else if (!m_regardless) {
        return;
    }
    StoreAndTell(tell);
}

void CEditRow::Leave(bool forAnotherWindow) {
    // What nobody has changed is not written back: the model may hold more than the control shows. A text
    // that cannot be read yet waits for the return from another window.
    if (ControlText() != m_settled && !(forAnotherWindow && !Exchange(true)))
        Commit(!m_quietOnLeave);
}
