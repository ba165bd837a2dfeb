#pragma once
// The tab control of a dialog and the pages in it. One is visible. The others are made when the dialog has
// been painted for the first time, or when something asks for them before.

#include "editors/framework/editor_frame.h"
#include "editors/framework/page_stack.h"

#include <QTabWidget>
#include <tuple>

class QHBoxLayout;

class CPageTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit CPageTabs(CDialog& dialog);
    ~CPageTabs() override;

    /// Puts a page under a tab at the end, in the constructor of the dialog. It is made from the arguments
    /// when it is needed; those that are given by reference must last. `caption` is a ChartText.
    template <class Page, class... Args>
    void AttachPage(int caption, Args&&... args) {
        AttachPage(caption, MakerOf<Page>(std::forward<Args>(args)...));
    }
    void AttachPage(int caption, CPageStack::Make make);
    /// Puts a page under the last tab, which then has several pages, of which one shows.
    template <class Page, class... Args>
    void AttachBeside(Args&&... args) {
        Stack(count() - 1)->Attach(MakerOf<Page>(std::forward<Args>(args)...));
    }
    /// The same for a page that is the dialog's; without a caption under the last tab.
    void AttachPage(CDialog& page, const QString& caption = {});
    void AttachPage(CDialog& page, int caption);
    /// Chooses a page among those of the last tab.
    void Choose(int index);
    /// Makes the pages that are still to be made.
    void Complete();
    /// Shows the tab of that index and gives the focus to the dialog. An index without a tab only gives the
    /// focus.
    void ShowPage(int index);
    /// Starts the pages, lays out the dialog with the tabs as its body, and shows the first page.
    void Open(CEditorParts besides);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    template <class Page, class... Args>
    static CPageStack::Make MakerOf(Args&&... args) {
        return [kept = std::tuple<Args...>(std::forward<Args>(args)...)] {
            return std::apply([](auto&... each) { return std::make_unique<Page>(each...); }, kept);
        };
    }
    CPageStack* Stack(int index) const;
    /// The natural size that the pages of a tab had when they were made for the last time; invalid if they
    /// never were, or looked otherwise then.
    QSize& KeptSize(int index) const;
    /// Makes the pages of that tab, of a dialog that is open.
    void Complete(int index);

    CDialog& m_dialog;
    QHBoxLayout* m_body = nullptr;
    int m_shown = 0;
    bool m_painted = false;
};
