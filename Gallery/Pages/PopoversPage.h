#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

/// Popovers, and the fields that show their messages in them.
GalleryPage popoversPage();

} // namespace gallery
