#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage menusPage();

} // namespace gallery
