#include "editors/framework/page_tabs.h"

#include "editors/framework/mnemonics.h"
#include "editors/framework/scroll_room.h"
#include "platform/widgets/complaint.h"
#include "platform/widgets/dialog.h"
#include "resources/string_table.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QMap>
#include <QStyle>
#include <QTabBar>
#include <QTimer>
#include <utility>

CPageTabs::CPageTabs(CDialog& dialog) : QTabWidget(&dialog), m_dialog(dialog) {
    tabBar()->installEventFilter(this);
    // A click takes the focus from the edit that has it, before the page changes, and leaves it with the
    // dialog. Who walks the tabs by the arrow keys stays on them.
    tabBar()->setFocusPolicy(Qt::StrongFocus);
    connect(this, &QTabWidget::tabBarClicked, this, [this] { m_dialog.setFocus(); });
    // A letter or a screen reader shows the other page first: where the edit complains then, back to it.
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_body != nullptr && index >= 0)
            Complete(index);
        if (!CComplaint::Stands(m_dialog))
            m_shown = index;
        else if (index != m_shown)
            setCurrentIndex(m_shown);
    });
}

/// What has the focus tells its dialog when it goes, so the pages go while all is whole.
CPageTabs::~CPageTabs() {
    for (int i = 0; i < count(); ++i)
        Stack(i)->Clear();
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

void CPageTabs::AttachPage(int caption, CPageStack::Make make) {
    addTab(new CScrollRoom(new CPageStack), QString::fromUtf8(LoadChartString(caption)));
    Stack(count() - 1)->Attach(std::move(make));
}

void CPageTabs::Choose(int index) {
    Stack(count() - 1)->Choose(index);
}

QSize& CPageTabs::KeptSize(int index) const {
    static QMap<QString, QSize> sizes;
    const QStringList look{m_dialog.windowTitle(), QString::number(index), font().key(), style()->name(),
                           QString::number(logicalDpiY())};
    return sizes[look.join(u'|')];
}

void CPageTabs::Complete(int index) {
    if (Stack(index)->IsComplete())
        return;
    Stack(index)->Complete();
    TakeIn(*static_cast<CScrollRoom*>(widget(index)), *this);
    AssignMnemonics(m_dialog);
}

void CPageTabs::Complete() {
    for (int i = 0; i < count(); ++i)
        Complete(i);
}

void CPageTabs::paintEvent(QPaintEvent* event) {
    QTabWidget::paintEvent(event);
    if (!std::exchange(m_painted, true))
        QTimer::singleShot(0, this, [this] { Complete(); });
}

void CPageTabs::ShowPage(int index) {
    setCurrentIndex(index);
    m_dialog.setFocus();
}

void CPageTabs::Open(CEditorParts besides) {
    // The dialog has the size for all of its pages, so that one can be made later only if its size is known.
    for (int i = 0; i < count(); ++i) {
        Stack(i)->Start();
        Stack(i)->Expect(KeptSize(i));
        if (i == 0 || !KeptSize(i).isValid())
            Stack(i)->Complete();
    }
    if (m_body == nullptr) {
        m_body = new QHBoxLayout;
        m_body->addWidget(this);
    }
    besides.body = m_body;
    OpenEditor(m_dialog, besides);
    for (int i = 0; i < count(); ++i)
        if (Stack(i)->IsComplete())
            KeptSize(i) = Stack(i)->sizeHint();
    AssignMnemonics(m_dialog);
    ShowPage(0);
}

bool CPageTabs::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::Wheel; // a wheel that passes over the tabs changes nothing
}
