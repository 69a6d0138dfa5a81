#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage checkBoxesPage();

} // namespace gallery
