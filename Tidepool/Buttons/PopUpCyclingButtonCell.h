#pragma once

#include "Tidepool/Buttons/ImageButtonCell.h"

namespace tidepool {

/// An image alone, the same whether it is pressed or not.
class PopUpCyclingButtonCell : public ImageButtonCell {};

} // namespace tidepool
