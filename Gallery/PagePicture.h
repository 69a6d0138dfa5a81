#pragma once

#include "Gallery/GalleryPage.h"

#include <QImage>

#include <vector>

namespace gallery {

/// The whole page as its settings have it, drawn without a window. Sets the appearance of the application.
QImage pagePicture(const GalleryPage& page, const GallerySettings& settings);

/// The settings that each page has an accepted picture in.
const std::vector<GallerySettings>& pictureSettings();

/// "Colours.png" in the usual settings; others show in the name: "Colours light.png", "Colours@2x.png".
QString pictureName(const GalleryPage& page, const GallerySettings& settings);

} // namespace gallery
