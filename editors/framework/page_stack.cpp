#include "editors/framework/page_stack.h"

#include <utility>

CPageStack::~CPageStack() {
    while (count() > 0)
        widget(0)->setParent(nullptr);
}

void CPageStack::Attach(CDialog& page) {
    addWidget(&page);
}

void CPageStack::Attach(Make make) {
    m_toMake.push_back(std::move(make));
}

void CPageStack::Start() {
    for (int i = 0; i < count(); ++i)
        static_cast<CDialog*>(widget(i))->Create(this);
}

void CPageStack::Complete() {
    for (const Make& make : std::exchange(m_toMake, {})) {
        CDialog& page = *m_made.emplace_back(make());
        Attach(page);
        page.Create(this);
    }
    setCurrentIndex(m_chosen);
}

void CPageStack::Choose(int index) {
    m_chosen = index;
    setCurrentIndex(index);
}

QSize CPageStack::sizeHint() const {
    return IsComplete() ? QStackedWidget::sizeHint() : m_expected;
}
