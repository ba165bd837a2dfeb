#include "editors/framework/page_tabs.h"

#include "editors/framework/editor_frame.h"
#include "editors/framework/mnemonics.h"
#include "platform/widgets/dialog.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTabBar>

CPageTabs::CPageTabs(CDialog& dialog) : QTabWidget(&dialog), m_dialog(dialog) {
    tabBar()->installEventFilter(this);
    // A click on a tab goes away from the edit that has the focus, before the page changes. Who walks the
    // tabs by the arrow keys stays on them.
    connect(this, &QTabWidget::tabBarClicked, this, [this] { m_dialog.setFocus(); });
}

CPageTabs::~CPageTabs() {
    for (int i = 0; i < count(); ++i)
        for (QWidget* page : widget(i)->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            page->setParent(nullptr);
}

void CPageTabs::AttachPage(CDialog& page, const QString& caption) {
    if (!caption.isEmpty())
        addTab(new QStackedWidget, caption);
    auto* stack = static_cast<QStackedWidget*>(widget(count() - 1));
    page.Create(stack);
    stack->addWidget(&page);
}

void CPageTabs::Choose(CDialog& page) {
    static_cast<QStackedWidget*>(page.parentWidget())->setCurrentWidget(&page);
}

void CPageTabs::ShowPage(int index) {
    setCurrentIndex(index);
    m_dialog.setFocus();
}

void CPageTabs::Open(CChartPreviewView* preview) {
    auto* body = new QHBoxLayout;
    body->addWidget(this);
    LayEditor(m_dialog, preview, body, m_dialog.MakeOkCancel());
    AssignMnemonics(m_dialog);
    ShowPage(0);
}

bool CPageTabs::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::Wheel; // a wheel that passes over the tabs changes nothing
}
