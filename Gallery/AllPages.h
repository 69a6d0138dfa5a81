#pragma once

#include "Gallery/GalleryPage.h"

#include <vector>

namespace gallery {

/// Every page, in the order of the list.
const std::vector<GalleryPage>& allPages();

} // namespace gallery
