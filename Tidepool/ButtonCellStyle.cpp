#include "Tidepool/ButtonCellStyle.h"

#include "Tidepool/ControlAssets.h"
#include "Tidepool/StyleValues.h"
#include "Tidepool/Styles.h"
#include "Tidepool/TPImages.h"

namespace tidepool {

ButtonCellStyle::ButtonCellStyle() {
    setBackgroundColor(QColor(Styles::BaseStyles::clear));
    setFont(Styles::Control::mediumFont());
    setBezelImages(
        {{normal, TPImages::button}, {on, PushButtonImages::selected}, {highlighted, TPImages::buttonDown}});
}

} // namespace tidepool
