#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage segmentsPage();

} // namespace gallery
