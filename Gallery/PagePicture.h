#pragma once

#include "Gallery/GalleryPage.h"

#include <QImage>

namespace gallery {

/// The whole page as its settings have it, drawn without a window. Sets the appearance of the application.
QImage pagePicture(const GalleryPage& page, const GallerySettings& settings);

/// "Colours.png", and "Colours@2x.png" for two pixels a point.
QString pictureName(const GalleryPage& page, int scale);

} // namespace gallery
