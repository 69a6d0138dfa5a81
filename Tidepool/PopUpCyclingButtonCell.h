#pragma once

#include "Platform/Controls/ButtonCell.h"

namespace tidepool {

/// An image alone, the same whether it is pressed or not.
class PopUpCyclingButtonCell : public platform::ButtonCell {
public:
    PopUpCyclingButtonCell() {
        setBordered(false);
        setImagePosition(platform::ImagePosition::imageOnly);
    }
};

} // namespace tidepool
