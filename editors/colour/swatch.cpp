#include "editors/colour/swatch.h"

#include "editors/preview/bitmap.h"
#include "render/samples.h"

#include <QPainter>

namespace {

class CSwatchPreview : public CChartPreview {
public:
    CSwatchPreview(const CChartColor& color, QSize size) : m_size(size) { m_sampleColor = color; }
    int ClientWidth() const override { return m_size.width(); }
    int ClientHeight() const override { return m_size.height(); }
    void SetScrollSizes() override {}
    void PaintSample(const char* bytes, int length) override {
        if (length > 0) {
            m_image = BitmapPart({bytes, static_cast<std::size_t>(length)}, QRect(QPoint(), m_size));
            QPainter(&m_image).drawRect(m_image.rect().adjusted(0, 0, -1, -1));
        }
    }

    QImage m_image;

private:
    QSize m_size;
};

} // namespace

QImage MakeSwatch(const CChartColor& color, QSize size) {
    if (size.isEmpty())
        return {};
    CSwatchPreview preview(color, size);
    DrawColorSample(preview);
    return preview.m_image;
}
