#include "engine/paint/spare_image.h"

#include <new>
#include <utility>

namespace chartdraw {

namespace {

constexpr std::size_t kMostKept = std::size_t{8} << 20; // bytes a thread
constexpr std::size_t kPixel = 4;

} // namespace

thread_local SpareImage::Memory SpareImage::s_spare;

SpareImage::SpareImage(QSize size) : m_memory(std::exchange(s_spare, {})) {
    const auto width = static_cast<std::size_t>(size.width());
    const std::size_t needed = kPixel * width * static_cast<std::size_t>(size.height());
    if (m_memory.size < needed) {
        m_memory = {};
        m_memory = {std::unique_ptr<uchar[]>(new (std::nothrow) uchar[needed]), needed};
    }
    if (m_memory.pixels != nullptr) {
        m_image = QImage(m_memory.pixels.get(), size.width(), size.height(),
                         static_cast<qsizetype>(kPixel * width), QImage::Format_ARGB32_Premultiplied);
    }
}

SpareImage::~SpareImage() {
    if (m_memory.pixels != nullptr && m_memory.size <= kMostKept && m_memory.size > s_spare.size)
        s_spare = std::move(m_memory);
}

} // namespace chartdraw
