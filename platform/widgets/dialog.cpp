#include "platform/widgets/dialog.h"

#include "platform/widgets/clear_buttons.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/field_changed.h"
#include "platform/widgets/scout.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLayout>
#include <QMessageBox>
#include <QPushButton>

void SendFieldChanged(QWidget* target, int key) {
    if (target != nullptr) {
        CFieldChangedEvent event(key);
        QCoreApplication::sendEvent(target, &event);
    }
}

CDialog::CDialog(const QString& caption) {
    setWindowTitle(caption);
    setObjectName(caption);
}

int CDialog::DoModal() {
    if (const CScout* scout = CScout::Present()) {
        if (OnInitDialog())
            scout->Look(*this);
        return kCancel;
    }
    // The owner is found when the dialog is shown, as the active window can change until then.
    if (QWidget* active = QApplication::activeWindow(); active != nullptr && active != this) {
        setParent(active,
                  Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    }
    if (!OnInitDialog())
        return kCancel;
    setWindowFlag(Qt::MSWindowsFixedSizeDialogHint, !m_resizable);
    if (layout() != nullptr && !m_resizable)
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    const int result = exec();
    setParent(nullptr);
    return result == Accepted ? kOK : kCancel;
}

bool CDialog::Create(QWidget* parent) {
    m_hosted = true;
    if (parentWidget() != parent)
        setParent(parent, Qt::Widget);
    return OnInitDialog();
}

bool CDialog::UpdateData(bool read) {
    return DoDataExchange(read);
}

void CDialog::OnFieldChanged(int key) {
    if (m_controls != nullptr)
        m_controls->FieldChanged(key);
}

bool CDialog::DoDataExchange(bool read) {
    return m_controls == nullptr || m_controls->Exchange(read);
}

bool CDialog::OnInitDialog() {
    if (m_controls != nullptr)
        m_controls->Start();
    return UpdateData(false);
}

void CDialog::OnOK() {
    const bool inEdit = m_controls != nullptr && m_controls->CommitFocused();
    if (!inEdit && !m_hosted && UpdateData(true))
        done(Accepted);
}

void CDialog::OnCancel() {
    if (!m_hosted)
        done(Rejected);
}

QWidget* CDialog::MakeOkCancel() {
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* ok = new CPushButton(buttons);
    QPushButton* cancel = new CPushButton(buttons);
    buttons->addButton(ok, QDialogButtonBox::AcceptRole);
    buttons->addButton(cancel, QDialogButtonBox::RejectRole);
    for (const auto& [button, text] :
         {std::pair(ok, QStringLiteral("OK")), {cancel, QStringLiteral("Cancel")}}) {
        button->setText(text);
        button->setObjectName(text);
        button->setAccessibleName(text);
    }
    ok->setDefault(true);
    // A press takes the focus on every platform, so that the edit that had it commits before the dialog ends.
    ok->setFocusPolicy(Qt::StrongFocus);
    WhenClicked(*ok, [this] { OnOK(); });
    // Cancel does not care what stands in an edit.
    cancel->setFocusPolicy(Qt::TabFocus);
    connect(cancel, &QPushButton::clicked, this, [this] { OnCancel(); });
    return buttons;
}

bool CDialog::event(QEvent* event) {
    if (event->type() == CFieldChangedEvent::kType) {
        OnFieldChanged(static_cast<CFieldChangedEvent*>(event)->Key());
        return true;
    }
    return QDialog::event(event);
}

void CDialog::showEvent(QShowEvent* event) {
    if (m_hosted)
        QWidget::showEvent(event); // its host has placed it
    else
        QDialog::showEvent(event);
}

void CDialog::keyPressEvent(QKeyEvent* event) {
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        OnOK();
    else if (plain && event->key() == Qt::Key_Escape)
        OnCancel();
    else
        QWidget::keyPressEvent(event);
}

void CDialog::closeEvent(QCloseEvent* event) {
    // The close box is a Cancel; OnCancel decides whether the window goes.
    event->ignore();
    OnCancel();
}

void WarnBox(QWidget* owner, const QString& text, const QString& caption) {
    QMessageBox box(QMessageBox::Warning, caption, text, QMessageBox::Ok, owner);
    box.exec();
}
