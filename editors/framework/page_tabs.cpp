#include "editors/framework/page_tabs.h"

#include "platform/widgets/dialog.h"

CPageTabs::CPageTabs(CDialog& dialog) : QTabWidget(&dialog), m_dialog(dialog) {
    connect(this, &QTabWidget::tabBarClicked, this, &CPageTabs::ShowPage);
}

void CPageTabs::AttachPage(CDialog& page, const QString& caption) {
    page.Create(this);
    addTab(&page, caption);
}

void CPageTabs::ShowPage(int index) {
    setCurrentIndex(index); // ignores an index without a page
    m_dialog.setFocus();
}
