#include "Gallery/AllPages.h"

#include "Gallery/Pages/ColorsPage.h"
#include "Gallery/Pages/ImagesPage.h"
#include "Gallery/Pages/StatesPage.h"

namespace gallery {

const std::vector<GalleryPage>& allPages() {
    static const std::vector<GalleryPage> pages{
        colorsPage(),
        imagesPage(),
        statesPage(),
    };
    return pages;
}

} // namespace gallery
