#include "Tidepool/Styles/ButtonCellStyle.h"

#include "Tidepool/Palette/ControlAssets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

ButtonCellStyle::ButtonCellStyle() {
    setBackgroundColor(Styles::BaseStyles::clear);
    setFont(Styles::Control::mediumFont());
    setBezelImages(
        {{normal, TPImages::button}, {on, PushButtonImages::selected}, {highlighted, TPImages::buttonDown}});
}

} // namespace tidepool
