#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage popUpsPage();

} // namespace gallery
