#include "Tidepool/Styles/ButtonCellStyle.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/StyleValues.h"

namespace tidepool {

ButtonCellStyle::ButtonCellStyle() {
    setBackgroundColor(Styles::BaseStyles::clear);
    setFont(Styles::Control::mediumFont());
    setBezelImages(
        {{normal, TPImages::button}, {on, Images::tpkButtonSelected}, {highlighted, TPImages::buttonDown}});
}

} // namespace tidepool
