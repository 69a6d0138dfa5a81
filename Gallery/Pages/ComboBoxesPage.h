#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage comboBoxesPage();

} // namespace gallery
