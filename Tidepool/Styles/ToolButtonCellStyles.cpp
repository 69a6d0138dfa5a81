#include "Tidepool/Styles/ToolButtonCellStyles.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

ToolButtonCellStyle::ToolButtonCellStyle() {
    setImageEdgeInsets(insets(-1, 0, 1, 0));
    setBezelImages({{normal, Images::cornerToolBackground},
                    {on, Images::cornerToolBackgroundSelected},
                    {highlighted, Images::cornerToolBackgroundDown}});
}

CornerButtonCellStyle::CornerButtonCellStyle() {
    setEdgeInsets(insets(2, 4, 2, 4));
}

void BackButtonCellStyle::prepareToBeShared() {
    setBezelImages({{normal, Images::organiserNavbarBack}, {highlighted, Images::organiserNavbarBackDown}});
}

} // namespace tidepool
