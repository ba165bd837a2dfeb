#pragma once
// The base of every dialog, page and field: a dialog with one data exchange between its controls and its
// members, an initialisation step, and an answer to Enter and Esc.

#include <QDialog>

/// The controls of a dialog as a whole, where something stands between them and the dialog's members.
class CDialogControls {
public:
    /// Loads what the controls show, when the dialog starts.
    virtual void Start() {}
    /// Between controls and members; false when a control holds what cannot be read.
    virtual bool Exchange(bool read) = 0;
    /// Commits the text or number edit that has the focus; false when none has.
    virtual bool CommitFocused() = 0;
    /// The message of a field on the dialog.
    virtual void FieldChanged(int key) = 0;

protected:
    ~CDialogControls() = default;
};

class CDialog : public QDialog {
public:
    static constexpr int kOK = 1;
    static constexpr int kCancel = 2;

    explicit CDialog(const QString& caption = {});

    /// Runs the dialog over the application's active window. The result is kOK or kCancel; a dialog whose
    /// initialisation fails never shows and gives kCancel.
    int DoModal();

    /// Makes the dialog a part of `parent`: no frame, no modal loop. OnInitDialog runs inside, each time that
    /// this is called.
    bool Create(QWidget* parent);

    /// The data exchange: `read` reads the controls into the members and validates, the other way writes the
    /// members to the controls. False when a control holds what cannot be read.
    bool UpdateData(bool read);

    /// The message of a field or page below; the key is 0 for a plain change.
    virtual void OnFieldChanged(int key);

    /// Says what the virtual operations below work on; it must live as long as the dialog is used.
    void SetControls(CDialogControls* controls) { m_controls = controls; }
    CDialogControls* Controls() const { return m_controls; }

    /// The person may change the size of the dialog, which is fixed if this is not said.
    void SetResizable() { m_resizable = true; }

    /// The row of buttons at the foot of a modal dialog.
    QWidget* MakeOkCancel();

protected:
    virtual bool DoDataExchange(bool read);
    /// Fills the controls; the base writes the members to them.
    virtual bool OnInitDialog();
    /// Enter, and the OK button. Enter in an edit commits it and nothing more. Otherwise a modal dialog reads
    /// its controls and ends; a part of another dialog does nothing.
    virtual void OnOK();
    /// Esc, the close box, and the Cancel button: ends a modal dialog, does nothing in a part of another one.
    virtual void OnCancel();

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    CDialogControls* m_controls = nullptr;
    bool m_hosted = false; ///< a part of another dialog
    bool m_resizable = false;
};

/// A message box with a warning icon and one button.
void WarnBox(QWidget* owner, const QString& text, const QString& caption);
