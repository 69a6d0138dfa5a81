#include "Tidepool/Styles/ToolButtonCellStyles.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

ToolButtonCellStyle::ToolButtonCellStyle() {
    setImageEdgeInsets(insets(-1, 0, 1, 0));
    setBezelImages({{normal, CornerToolImages::background},
                    {on, CornerToolImages::backgroundSelected},
                    {highlighted, CornerToolImages::backgroundDown}});
}

CornerButtonCellStyle::CornerButtonCellStyle() {
    setEdgeInsets(insets(2, 4, 2, 4));
}

void BackButtonCellStyle::prepareToBeShared() {
    setBezelImages({{normal, OrganiserImages::navbarBack}, {highlighted, OrganiserImages::navbarBackDown}});
}

} // namespace tidepool
