#include "model/src/opaque_list.h"
#include <charteditors/charteditors.h>

namespace {

template <class Element>
void assignElements(void*& elements, const void* other) {
    if (elements || other)
        model::editList<Element>(elements) = model::viewList<Element>(other);
}

template <class Element>
void eraseElement(void* elements, int index) {
    auto& list = model::editList<Element>(elements);
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(model::positionIn<Element>(elements, index)));
}

} // namespace

// The operations of one exported name; all of them are those of a vector.
#define DEFINE_CONTAINER(Container, Element)                                                                 \
    Container::Container() : m_items(nullptr) {}                                                             \
    Container::Container(const Container& other) : Container() {                                             \
        assignElements<Element>(m_items, other.m_items);                                                     \
    }                                                                                                        \
    Container::~Container() {                                                                                \
        model::freeList<Element>(m_items);                                                                   \
    }                                                                                                        \
    Container& Container::operator=(const Container& other) {                                                \
        assignElements<Element>(m_items, other.m_items);                                                     \
        return *this;                                                                                        \
    }                                                                                                        \
    int Container::begin() const {                                                                           \
        return 0;                                                                                            \
    }                                                                                                        \
    int Container::size() const {                                                                            \
        return model::countOf<Element>(m_items);                                                             \
    }                                                                                                        \
    bool Container::empty() const {                                                                          \
        return size() == 0;                                                                                  \
    }                                                                                                        \
    void Container::push_back(const Element& element) {                                                      \
        model::editList<Element>(m_items).push_back(element);                                                \
    }                                                                                                        \
    Element& Container::operator[](int index) {                                                              \
        return model::editList<Element>(m_items)[model::positionIn<Element>(m_items, index)];                \
    }                                                                                                        \
    const Element& Container::operator[](int index) const {                                                  \
        return model::viewList<Element>(m_items)[model::positionIn<Element>(m_items, index)];                \
    }                                                                                                        \
    void Container::erase(int index) {                                                                       \
        eraseElement<Element>(m_items, index);                                                               \
    }

DEFINE_CONTAINER(CChartStrings, CChartString)
DEFINE_CONTAINER(CChartColors, CChartColor)
DEFINE_CONTAINER(CChartTitles, CChartTitle)
DEFINE_CONTAINER(CBoxGroups, CBoxGroup)
DEFINE_CONTAINER(CPieChartSectors, CPieChartSector)
DEFINE_CONTAINER(CMeterZoneAngulars, CMeterZoneAngular)
DEFINE_CONTAINER(CMeterZoneLinears, CMeterZoneLinear)
DEFINE_CONTAINER(CChartTextBoxs, CChartTextBox)
DEFINE_CONTAINER(CMeterPointers, CMeterPointer)
DEFINE_CONTAINER(CAngularRings, CAngularRing)
