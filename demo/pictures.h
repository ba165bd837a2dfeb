#pragma once
// The demo without a person: pictures of what there is to see.

class HostWindow;
class QString;

/// Writes the window, each finished chart, and each page of each editor as PNG files into `folder`, which is
/// made. Says on the standard output what it has written; false, and why on the error output, if that fails.
/// A kind whose editor does not open has no pictures of it.
bool WritePictures(HostWindow& window, const QString& folder);
