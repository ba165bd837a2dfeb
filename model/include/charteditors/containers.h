#pragma once

/// @file
/// The ten lists of the value model. They differ in their element only:
///
/// - `Container()` is empty and allocates nothing; copying copies every element.
/// - `int begin() const` is always 0, so that `erase(begin() + i)` reads as usual. An element is named by
///   its index, there are no iterators.
/// - `int size() const` is the number of elements, `bool empty() const` whether there is none.
/// - `void push_back(const Element&)` appends a copy; the argument may be an element of the same container.
///   If memory runs out the container is as it was.
/// - `Element& operator[](int index)`, also const: the element, 0 <= index < size(). A reference is good
///   until the container grows, shrinks, is assigned or dies.
/// - `void erase(int index)` removes one element, 0 <= index < size(); those behind it move up. The storage
///   is kept for the next `push_back`.
///
/// An index out of range is the caller's fault: a build with assertions stops there, others do not look.

#include <charteditors/base.h>

/// Declares one container of the family; private to this header.
#define CHARTEDITORS_CONTAINER(Container, Element)                                                           \
    class Element;                                                                                           \
    class CHARTEDITORS_API Container {                                                                       \
    public:                                                                                                  \
        Container();                                                                                         \
        Container(const Container& other);                                                                   \
        ~Container();                                                                                        \
        Container& operator=(const Container& other);                                                        \
        int begin() const;                                                                                   \
        int size() const;                                                                                    \
        bool empty() const;                                                                                  \
        void push_back(const Element& element);                                                              \
        Element& operator[](int index);                                                                      \
        const Element& operator[](int index) const;                                                          \
        void erase(int index);                                                                               \
                                                                                                             \
    private:                                                                                                 \
        void* m_items; /* the library's own list, null until there is an element */                          \
    }

CHARTEDITORS_CONTAINER(CChartStrings, CChartString);
CHARTEDITORS_CONTAINER(CChartColors, CChartColor);
CHARTEDITORS_CONTAINER(CChartTitles, CChartTitle);
CHARTEDITORS_CONTAINER(CBoxGroups, CBoxGroup);
CHARTEDITORS_CONTAINER(CPieChartSectors, CPieChartSector);
CHARTEDITORS_CONTAINER(CMeterZoneAngulars, CMeterZoneAngular);
CHARTEDITORS_CONTAINER(CMeterZoneLinears, CMeterZoneLinear);
CHARTEDITORS_CONTAINER(CChartTextBoxs, CChartTextBox);
CHARTEDITORS_CONTAINER(CMeterPointers, CMeterPointer);
CHARTEDITORS_CONTAINER(CAngularRings, CAngularRing);

#undef CHARTEDITORS_CONTAINER
