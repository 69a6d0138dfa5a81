#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage imageButtonsPage();

} // namespace gallery
