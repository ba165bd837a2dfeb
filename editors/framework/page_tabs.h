#pragma once
// The tab control of a dialog and the pages in it. All pages exist from the start; one is visible.

#include <QTabWidget>
#include <vector>

class CDialog;

class CPageTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit CPageTabs(CDialog& dialog);

    /// Makes the page a part of the tab control, hidden, under a tab at the end.
    void AttachPage(CDialog& page, const QString& caption);
    /// Hides every page, shows the page of that index and gives the focus to the dialog. An index without a
    /// page only gives the focus.
    void ShowPage(int index);

private:
    CDialog& m_dialog;
};
