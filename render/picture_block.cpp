#include "render/picture_block.h"
#include <iterator>
#include <new>
#include <utility>

/// Never destroyed, since previews may live as long as the program.
static std::vector<std::vector<char>>& leftBlocks() {
    static auto* const blocks = new std::vector<std::vector<char>>;
    return *blocks;
}

CPictureBlock::~CPictureBlock() {
    if (m_bytes.capacity() == 0)
        return;
    try {
        leftBlocks().push_back(std::move(m_bytes));
    } catch (const std::bad_alloc&) {
    }
}

bool CPictureBlock::Assign(const char* bytes, int length) {
    if (m_bytes.capacity() == 0 && !leftBlocks().empty()) {
        m_bytes = std::move(leftBlocks().back());
        leftBlocks().pop_back();
    }
    m_bytes.clear();
    try {
        if (bytes && length > 0)
            m_bytes.assign(bytes, bytes + length);
    } catch (const std::bad_alloc&) {
        return false;
    }
    return !m_bytes.empty();
}

int CPictureBlock::LeftBehind() {
    return static_cast<int>(std::ssize(leftBlocks()));
}
