#pragma once
// An image to draw on and to be done with: its memory is kept for the next one of the thread, so that picture
// after picture does not take new pages from the system and give them back.

#include <QImage>
#include <memory>

namespace chartdraw {

class SpareImage {
public:
    /// Its pixels are what they happen to be. Null where memory does not suffice.
    explicit SpareImage(QSize size);
    ~SpareImage();
    SpareImage(const SpareImage&) = delete;
    SpareImage& operator=(const SpareImage&) = delete;

    /// Must not outlive this, nor may copies of it.
    QImage& image() { return m_image; }

private:
    struct Memory {
        std::unique_ptr<uchar[]> pixels;
        std::size_t size = 0;
    };
    static thread_local Memory s_spare;

    Memory m_memory;
    QImage m_image;
};

} // namespace chartdraw
