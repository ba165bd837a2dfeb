#pragma once
// The memory of a preview's picture.

#include <vector>

/// The bytes of a bitmap file, or none. A block outlives its owner: on the way out it is left behind, still
/// allocated, and the next owner without a block takes it over. So there are never more blocks than there
/// were previews with a picture at one time. For the user interface thread only.
class CPictureBlock {
public:
    CPictureBlock() = default;
    ~CPictureBlock();
    CPictureBlock(const CPictureBlock&) = delete;
    CPictureBlock& operator=(const CPictureBlock&) = delete;

    /// Copies the bytes; false, and none, if there is no memory. No bytes are none.
    bool Assign(const char* bytes, int length);
    void Clear() { m_bytes.clear(); }
    bool Empty() const { return m_bytes.empty(); }
    const std::vector<char>& Bytes() const { return m_bytes; }

    /// How many blocks lie waiting for an owner.
    static int LeftBehind();

private:
    std::vector<char> m_bytes;
};
