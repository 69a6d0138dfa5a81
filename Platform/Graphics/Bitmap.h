#pragma once

#include <QImage>
#include <QString>

namespace platform {

/// The picture in a PNG file, premultiplied; null if it cannot be read. Qt's own reader would first load
/// every image plug-in of the machine to ask whether one of them takes PNG.
QImage readBitmap(const QString& file);

} // namespace platform
