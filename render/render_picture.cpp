#include "render/render_picture.h"
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QSaveFile>
#include <QtEndian>
#include <utility>

/// The pixels are taken as they lie in the file: the toolkit's reader refuses large ones.
static QByteArray EncodePng(const char* bitmapFile, int length) {
    constexpr int widthAt = 18, heightAt = 22, headerBytes = 54, pixelsPerMetre = 3780; // 96 an inch
    const auto number = [&](int at) {
        return length > headerBytes ? qFromLittleEndian<qint32>(bitmapFile + at) : 0;
    };
    const auto* pixels = reinterpret_cast<const uchar*>(bitmapFile + headerBytes);
    const int width = number(widthAt), height = number(heightAt), stride = (width * 3 + 3) / 4 * 4;
    QImage image = QImage(pixels, width, height, stride, QImage::Format_BGR888).mirrored(); // bottom up
    image.setDotsPerMeterX(pixelsPerMetre);
    image.setDotsPerMeterY(pixelsPerMetre);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return !image.isNull() && image.save(&buffer, "PNG") ? bytes : QByteArray();
}

CChartPicture::CChartPicture() : m_bytes(nullptr) {}

CChartPicture::~CChartPicture() {
    delete static_cast<QByteArray*>(m_bytes);
}

bool CChartPicture::Empty() const {
    return Size() == 0;
}

const unsigned char* CChartPicture::Data() const {
    return Empty() ? nullptr
                   : reinterpret_cast<const unsigned char*>(static_cast<QByteArray*>(m_bytes)->constData());
}

std::size_t CChartPicture::Size() const {
    return m_bytes ? static_cast<std::size_t>(static_cast<QByteArray*>(m_bytes)->size()) : 0;
}

bool CChartPicture::Save(const char* path) const {
    if (Empty() || !path)
        return false;
    QSaveFile file(QFile::decodeName(path));
    return file.open(QIODevice::WriteOnly) && file.write(*static_cast<QByteArray*>(m_bytes)) >= 0 &&
           file.commit();
}

void CChartPictureAccess::Clear(CChartPicture& picture) {
    delete static_cast<QByteArray*>(std::exchange(picture.m_bytes, nullptr));
}

ChartRenderResult CChartPictureAccess::Make(CChartPicture& picture, BaseChart* chart,
                                            ChartPictureFormat format) {
    const char* bytes = nullptr;
    int length = 0;
    if (!CBaseChart_makeChart2(chart, CHART_FORMAT_BMP, &bytes, &length))
        return ChartRenderResult::NoPicture;
    picture.m_bytes = format == ChartPictureFormat::Png
                          ? new QByteArray(EncodePng(bytes, length))
                          : new QByteArray(bytes, length); // a copy, since the chart's bytes end with it
    return picture.Empty() ? ChartRenderResult::NoPicture : ChartRenderResult::Ok;
}
