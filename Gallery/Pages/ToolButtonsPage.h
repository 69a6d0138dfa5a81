#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

GalleryPage toolButtonsPage();

} // namespace gallery
