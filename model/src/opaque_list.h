#pragma once

// The list behind the opaque pointer of a container or a manager. It is made when the first element comes, so
// that an empty one costs nothing; before that, viewList() stands in with a list of none.

#include <cassert>
#include <memory>
#include <vector>

namespace model {

template <class Item>
const std::vector<Item>& viewList(const void* list) {
    static const std::vector<Item> none;
    return list ? *static_cast<const std::vector<Item>*>(list) : none;
}

template <class Item>
std::vector<Item>& editList(void*& list) {
    if (!list)
        list = new std::vector<Item>;
    return *static_cast<std::vector<Item>*>(list);
}

template <class Item>
void freeList(void* list) {
    delete static_cast<std::vector<Item>*>(list);
}

template <class Item>
int countOf(const void* list) {
    return static_cast<int>(viewList<Item>(list).size());
}

/// `index` as a position of `list`, at which an element stands.
template <class Item>
std::size_t positionIn([[maybe_unused]] const void* list, int index) {
    assert(index >= 0 && index < countOf<Item>(list));
    return static_cast<std::size_t>(index);
}

} // namespace model
