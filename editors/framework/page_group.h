#pragma once
// A captioned group that shows one of several pages, chosen by a control outside of it.

#include <QGroupBox>

class CDialog;
class CPageStack;

class CPageGroup : public QGroupBox {
    Q_OBJECT
public:
    explicit CPageGroup(CDialog& dialog);

    /// Adds a page at the end; `caption` is what the group is called while it shows.
    void AttachPage(CDialog& page, const QString& caption);
    /// Starts the pages, each time that the dialog is opened.
    void Start();
    /// Shows a page under its caption and gives the focus to the dialog. An index without a page only gives
    /// the focus.
    void ShowPage(int index);

private:
    CDialog& m_dialog;
    CPageStack* m_stack;
    QStringList m_captions;
};
