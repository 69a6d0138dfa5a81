#include "Gallery/AllPages.h"

#include "Gallery/Pages/CheckBoxesPage.h"
#include "Gallery/Pages/ColorsPage.h"
#include "Gallery/Pages/ComboBoxesPage.h"
#include "Gallery/Pages/ImageButtonsPage.h"
#include "Gallery/Pages/ImagesPage.h"
#include "Gallery/Pages/MenusPage.h"
#include "Gallery/Pages/PopUpsPage.h"
#include "Gallery/Pages/PopoversPage.h"
#include "Gallery/Pages/PushButtonsPage.h"
#include "Gallery/Pages/ScrollBarsPage.h"
#include "Gallery/Pages/SegmentsPage.h"
#include "Gallery/Pages/StatesPage.h"
#include "Gallery/Pages/TextFieldsPage.h"
#include "Gallery/Pages/ToolButtonsPage.h"

namespace gallery {

const std::vector<GalleryPage>& allPages() {
    static const std::vector<GalleryPage> pages{
        colorsPage(),      imagesPage(),       statesPage(),   pushButtonsPage(), checkBoxesPage(),
        toolButtonsPage(), imageButtonsPage(), menusPage(),    segmentsPage(),    popUpsPage(),
        comboBoxesPage(),  textFieldsPage(),   popoversPage(), scrollBarsPage(),
    };
    return pages;
}

} // namespace gallery
