#include "Tidepool/Buttons/ImageButtonCell.h"

#include "Tidepool/Buttons/CellDrawing.h"

namespace tidepool {

ImageButtonCell::ImageButtonCell() {
    setBordered(false);
    setImagePosition(platform::ImagePosition::imageOnly);
}

float ImageButtonCell::opacity(StyledControlState state) const {
    return opacityOfImage(state);
}

void ImageButtonCell::drawImage(QPainter& painter, const QRectF& frame,
                                const platform::CellContext& context) const {
    drawTinted(painter, frame, shownImage(context), controlTextColor(context), opacity(context.state));
}

} // namespace tidepool
