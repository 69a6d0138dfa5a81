#include "Tidepool/Buttons/ImageButtonCell.h"

#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/StyleReference.h"

namespace tidepool {

ImageButtonCell::ImageButtonCell() {
    setBordered(false);
    setImagePosition(platform::ImagePosition::imageOnly);
}

QColor ImageButtonCell::controlTextColor() const {
    return StyleReference().get<ButtonCellStyle>(controlView()).textColor();
}

} // namespace tidepool
