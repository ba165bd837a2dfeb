#pragma once
// The tab control of a dialog and the pages in it. All pages exist from the start; one is visible.

#include <QTabWidget>

class CChartPreviewView;
class CDialog;

class CPageTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit CPageTabs(CDialog& dialog);
    ~CPageTabs() override; ///< lets go of the pages, which are the dialog's

    /// Starts the page and puts it under a tab at the end. Without a caption it goes under the last tab,
    /// which then has several pages, of which one shows.
    void AttachPage(CDialog& page, const QString& caption = {});
    /// Chooses the page among those of its tab.
    void Choose(CDialog& page);
    /// Shows the tab of that index and gives the focus to the dialog. An index without a tab only gives the
    /// focus.
    void ShowPage(int index);
    /// Lays out the dialog when all pages are attached: the preview, if there is one, the tabs, OK and
    /// Cancel. Shows the first page.
    void Open(CChartPreviewView* preview);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CDialog& m_dialog;
};
