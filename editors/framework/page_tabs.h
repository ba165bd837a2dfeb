#pragma once
// The tab control of a dialog and the pages in it. All pages exist from the start; one is visible.

#include "editors/framework/editor_frame.h"

#include <QTabWidget>

class CDialog;
class CPageStack;
class QHBoxLayout;

class CPageTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit CPageTabs(CDialog& dialog);

    /// Puts the page under a tab at the end, in the constructor of the dialog. Without a caption it goes
    /// under the last tab, which then has several pages, of which one shows.
    void AttachPage(CDialog& page, const QString& caption = {});
    void AttachPage(CDialog& page, int caption); ///< a ChartText
    /// Chooses the page among those of its tab.
    void Choose(CDialog& page);
    /// Shows the tab of that index and gives the focus to the dialog. An index without a tab only gives the
    /// focus.
    void ShowPage(int index);
    /// Starts the pages, lays out the dialog with the tabs as its body, and shows the first page.
    void Open(CEditorParts besides);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CPageStack* Stack(int index) const;

    CDialog& m_dialog;
    QHBoxLayout* m_body = nullptr;
    int m_shown = 0;
};
