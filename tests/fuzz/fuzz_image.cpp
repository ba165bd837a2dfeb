#include "engine/paint/picture.h"
#include <QtGlobal>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    // The decoders grumble about every broken file.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QImage image = chartdraw::decodePicture(bytes);
    // What was read can be written.
    if (!image.isNull() && chartdraw::bitmapFile(image).isEmpty()) std::abort();
    return 0;
}
