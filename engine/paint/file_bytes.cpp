#include "engine/paint/file_bytes.h"

#include <QFile>

namespace chartdraw {

QByteArray fileBytes(const QFileInfo& info, qint64 most) {
    if (!info.isFile() || info.size() < 1 || info.size() > most)
        return {};
    QFile file(info.filePath());
    return file.open(QIODevice::ReadOnly) ? file.read(info.size()) : QByteArray();
}

} // namespace chartdraw
