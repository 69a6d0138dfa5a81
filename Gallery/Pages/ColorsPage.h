#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

/// The palette.
GalleryPage colorsPage();

} // namespace gallery
