#pragma once

#include "Tidepool/Buttons/CellDrawing.h"
#include "Tidepool/Buttons/ImageButtonCell.h"

namespace tidepool {

/// An image alone, the same whether it is pressed or not.
class PopUpCyclingButtonCell : public ImageButtonCell {
protected:
    float opacity(StyledControlState state) const override { return opacityOfBezel(state); }
};

} // namespace tidepool
