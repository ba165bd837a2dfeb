#include "editors/framework/page_tabs.h"

#include "editors/framework/mnemonics.h"
#include "editors/framework/page_stack.h"
#include "editors/framework/scroll_room.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/dialog.h"
#include "resources/string_table.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QTabBar>

CPageTabs::CPageTabs(CDialog& dialog) : QTabWidget(&dialog), m_dialog(dialog) {
    tabBar()->installEventFilter(this);
    // A click takes the focus from the edit that has it, before the page changes, and leaves it with the
    // dialog. Who walks the tabs by the arrow keys stays on them.
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    connect(this, &QTabWidget::tabBarClicked, this, [this] { m_dialog.setFocus(); });
    // A letter or a screen reader shows the other page first: where the edit complains then, back to it.
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (!CComplaint::Stands(m_dialog))
            m_shown = index;
        else if (index != m_shown)
            setCurrentIndex(m_shown);
    });
}

CPageStack* CPageTabs::Stack(int index) const {
    return static_cast<CPageStack*>(static_cast<CScrollRoom*>(widget(index))->widget());
}

void CPageTabs::AttachPage(CDialog& page, const QString& caption) {
    if (!caption.isEmpty())
        addTab(new CScrollRoom(new CPageStack), caption);
    Stack(count() - 1)->Attach(page);
}

void CPageTabs::AttachPage(CDialog& page, int caption) {
    AttachPage(page, QString::fromUtf8(LoadChartString(caption)));
}

void CPageTabs::Choose(CDialog& page) {
    static_cast<CPageStack*>(page.parentWidget())->setCurrentWidget(&page);
}

void CPageTabs::ShowPage(int index) {
    setCurrentIndex(index);
    m_dialog.setFocus();
}

void CPageTabs::Open(CEditorParts besides) {
    for (int i = 0; i < count(); ++i)
        Stack(i)->Start();
    if (m_body == nullptr) {
        m_body = new QHBoxLayout;
        m_body->addWidget(this);
    }
    besides.body = m_body;
    OpenEditor(m_dialog, besides);
    AssignMnemonics(m_dialog);
    ShowPage(0);
}

bool CPageTabs::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::Wheel; // a wheel that passes over the tabs changes nothing
}
