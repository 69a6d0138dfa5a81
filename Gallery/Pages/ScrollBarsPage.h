#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

/// Scroll bars.
GalleryPage scrollBarsPage();

} // namespace gallery
