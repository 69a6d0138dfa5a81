#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage pushButtonsPage();

} // namespace gallery
