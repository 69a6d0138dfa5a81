#pragma once

#include "Gallery/GalleryPage.h"

namespace gallery {

/// Text fields, search fields and labels.
GalleryPage textFieldsPage();

} // namespace gallery
