#include "editors/framework/page_group.h"

#include "editors/framework/page_stack.h"
#include "platform/widgets/dialog.h"

#include <QVBoxLayout>

CPageGroup::CPageGroup(CDialog& dialog)
    : QGroupBox(&dialog), m_dialog(dialog), m_stack(new CPageStack(this)) {
    auto* room = new QVBoxLayout(this);
    room->setContentsMargins(0, 0, 0, 0); // the pages have theirs
    room->addWidget(m_stack);
}

void CPageGroup::AttachPage(CDialog& page, const QString& caption) {
    m_stack->Attach(page);
    m_captions.append(caption);
}

void CPageGroup::Start() {
    m_stack->Start();
}

void CPageGroup::ShowPage(int index) {
    if (index >= 0 && index < m_captions.size()) {
        m_stack->setCurrentIndex(index);
        setTitle(m_captions[index]);
        setObjectName(title());
    }
    m_dialog.setFocus();
}
