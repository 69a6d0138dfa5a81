#pragma once

#include "Tidepool/Assets.h"

namespace tidepool {

/// The kit's colours. Each member stands for its colour in the current appearance.
using TPColors = Colors;

/// The same colours for desktop views and cells, which here draw with the same type as declarative views.
using TPColorsAK = Colors;

} // namespace tidepool
