#pragma once

// What the three managers share: a list of pointers that owns what they name. An entry may be null.

#include "model/src/opaque_list.h"
#include <algorithm>

namespace model {

template <class Object>
void deleteObjects(const void* list) {
    for (Object* object : viewList<Object*>(list))
        delete object;
}

template <class Object>
void clearObjects(void*& list) {
    if (!list)
        return;
    deleteObjects<Object>(list);
    editList<Object*>(list).clear();
}

template <class Object>
void freeObjects(void* list) {
    deleteObjects<Object>(list);
    freeList<Object*>(list);
}

/// Makes `list` own a copy of every object of `other`. A failing copy leaves it as it was.
template <class Object, class Copy>
void assignObjects(void*& list, const void* other, Copy copy) {
    if (list == other)
        return;
    std::vector<std::unique_ptr<Object>> copies;
    copies.reserve(viewList<Object*>(other).size());
    for (Object* object : viewList<Object*>(other))
        copies.emplace_back(object ? copy(*object) : nullptr);

    std::vector<Object*>& objects = editList<Object*>(list);
    objects.reserve(copies.size());
    clearObjects<Object>(list);
    for (auto& object : copies)
        objects.push_back(object.release());
}

template <class Object>
Object* objectAt(const void* list, int index) {
    return viewList<Object*>(list)[positionIn<Object*>(list, index)];
}

template <class Object>
void setObject(void* list, Object* object, int index) {
    editList<Object*>(list)[positionIn<Object*>(list, index)] = object;
}

template <class Object>
void insertObject(void*& list, Object* object, int index) {
    assert(index >= 0 && index <= countOf<Object*>(list));
    std::vector<Object*>& objects = editList<Object*>(list);
    objects.insert(objects.begin() + index, object);
}

/// Appends and returns the index.
template <class Object>
int addObject(void*& list, Object* object) {
    const int index = countOf<Object*>(list);
    insertObject(list, object, index);
    return index;
}

template <class Object>
void deleteObject(void* list, int index) {
    delete objectAt<Object>(list, index);
    std::vector<Object*>& objects = editList<Object*>(list);
    objects.erase(objects.begin() + index);
}

} // namespace model
