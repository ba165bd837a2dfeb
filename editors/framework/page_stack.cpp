#include "editors/framework/page_stack.h"

#include "platform/widgets/dialog.h"

CPageStack::~CPageStack() {
    while (count() > 0)
        widget(0)->setParent(nullptr);
}

void CPageStack::Attach(CDialog& page) {
    addWidget(&page);
}

void CPageStack::Start() {
    for (int i = 0; i < count(); ++i)
        static_cast<CDialog*>(widget(i))->Create(this);
}
