#pragma once
// The base of every dialog, page and field: a dialog with one data exchange between its controls and its
// members, an initialisation step, and an answer to Enter and Esc.

#include <QDialog>

class CDialog : public QDialog {
public:
    static constexpr int kOK = 1;
    static constexpr int kCancel = 2;

    explicit CDialog(const QString& caption = {});

    /// Runs the dialog over the application's active window. The result is kOK or kCancel; a dialog whose
    /// initialisation fails never shows and gives kCancel.
    int DoModal();

    /// Makes the dialog a part of `parent`: no frame, no modal loop. OnInitDialog runs inside.
    bool Create(QWidget* parent);

    /// The data exchange: `read` reads the controls into the members and validates, the other way writes the
    /// members to the controls. False when a control holds what cannot be read.
    bool UpdateData(bool read);

    /// The message of a field or page below; the key is 0 for a plain change.
    virtual void OnFieldChanged(int key);

protected:
    virtual bool DoDataExchange(bool read);
    /// Fills the controls; the base writes the members to them.
    virtual bool OnInitDialog();
    /// Enter, and the OK button: the base ends the modal loop, after reading the controls.
    virtual void OnOK();
    /// Esc, the close box, and the Cancel button.
    virtual void OnCancel();

    /// The row of buttons at the foot of a modal dialog.
    QWidget* MakeOkCancel();

    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
};

/// A message box with a warning icon and one button.
void WarnBox(QWidget* owner, const QString& text, const QString& caption);
