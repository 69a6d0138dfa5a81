#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

/// The drawings.
GalleryPage imagesPage();

} // namespace gallery
