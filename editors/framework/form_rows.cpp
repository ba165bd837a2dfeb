#include "editors/framework/form_rows.h"

#include "editors/framework/form.h"
#include "platform/widgets/complaint.h"

#include <QEvent>
#include <QFocusEvent>

namespace {

/// Tells when a control has lost the focus, other than to its own menu.
class CFocusWatch : public QObject {
public:
    CFocusWatch(QWidget* watched, std::function<void(Qt::FocusReason)> leave) : m_leave(std::move(leave)) {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::FocusOut)
            return false;
        // The control does its own part first: to leave can bring the focus back to it.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        watched->event(event);
        if (reason != Qt::PopupFocusReason)
            m_leave(reason);
        return true;
    }

private:
    std::function<void(Qt::FocusReason)> m_leave;
};

} // namespace

void CFormRow::SetEnabled(bool enabled) {
    Control()->setEnabled(enabled);
    if (m_label != nullptr)
        m_label->setEnabled(enabled);
}

void CFormRow::SetTip(const QString& tip) {
    Control()->setToolTip(tip);
    Control()->setAccessibleDescription(tip);
    if (m_label != nullptr)
        m_label->setToolTip(tip);
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

void CFormRow::Chosen(QWidget& control) {
    if (!TakeFocus(control))
        Exchange(false); // as if nobody had touched it
    else if (m_validated ? m_form.UpdateDataSafe() : (m_form.Page().UpdateData(true), Exchange(true)))
        StoreAndTell();
}

void CFormRow::StoreAndTell(bool tell) {
    if (Store()) {
        m_form.ShowStates();
        if (tell)
            m_form.Notify();
        else
            m_form.Committed();
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
        control, [this](Qt::FocusReason reason) { Leave(reason); });
}

void CEditRow::Written() {
    if (m_settling) {
        m_settled = ControlText();
        m_settling = false;
    }
}

void CEditRow::Commit(bool tell, bool pressed) {
    if (Form().UpdateDataSafe(pressed)) {
        if (!m_regardless) {
            Settle();
            Form().Page().UpdateData(false);
        }
    } else if (!m_regardless) {
        return;
    }
    StoreAndTell(tell);
}

void CEditRow::Leave(Qt::FocusReason reason) {
    // What nobody has changed is not written back: the model may hold more than the control shows. A text
    // that cannot be read yet waits for the return from another window.
    const bool waits = reason == Qt::ActiveWindowFocusReason && !Exchange(true);
    if (ControlText() != m_settled && !waits)
        Commit(!m_quietOnLeave, reason == Qt::MouseFocusReason);
}
