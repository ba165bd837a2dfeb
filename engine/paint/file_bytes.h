#pragma once
// Files that a caller or a text names: read to an end that is known before.

#include <QByteArray>
#include <QFileInfo>

namespace chartdraw {

/// The bytes of a regular file of 1 to `most` bytes, as many as it had when it was looked at; empty for
/// anything else. A pipe, a device or a file that the system makes up while it is read could give bytes for
/// ever.
QByteArray fileBytes(const QFileInfo& info, qint64 most);

} // namespace chartdraw
