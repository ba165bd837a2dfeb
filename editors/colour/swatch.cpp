#include "editors/colour/swatch.h"

#include "editors/preview/bitmap.h"
#include "render/samples.h"

#include <QPainter>
#include <qdrawutil.h>

namespace {

class CSwatchPreview : public CChartPreview {
public:
    CSwatchPreview(const CChartColor& color, QSize size, double ratio) : m_size(size), m_ratio(ratio) {
        m_sampleColor = color;
    }
    int ClientWidth() const override { return m_size.width(); }
    int ClientHeight() const override { return m_size.height(); }
    void SetScrollSizes() override {}
    int PictureFormat() const override { return PictureFormatAt(m_ratio); }
    void PaintSample(const char* bytes, int length) override {
        if (length > 0) {
            m_image = WholeBitmap({bytes, static_cast<std::size_t>(length)});
            m_image.setDevicePixelRatio(m_ratio);
            QPainter painter(&m_image);
            qDrawPlainRect(&painter, QRect(QPoint(), m_size), Qt::black);
        }
    }

    QImage m_image;

private:
    QSize m_size;
    double m_ratio;
};

} // namespace

QImage MakeSwatch(const CChartColor& color, QSize size, double ratio) {
    if (size.isEmpty())
        return {};
    CSwatchPreview preview(color, size, ratio);
    DrawColorSample(preview);
    return preview.m_image;
}
