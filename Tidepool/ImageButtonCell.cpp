#include "Tidepool/ImageButtonCell.h"

#include "Tidepool/ButtonCellStyle.h"
#include "Tidepool/StyleReference.h"

namespace tidepool {

ImageButtonCell::ImageButtonCell() {
    setBordered(false);
    setImagePosition(platform::ImagePosition::imageOnly);
}

QColor ImageButtonCell::controlTextColor() const {
    return StyleReference().get<ButtonCellStyle>(controlView()).textColor();
}

} // namespace tidepool
