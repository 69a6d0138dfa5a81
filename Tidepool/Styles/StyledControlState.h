#pragma once

#include "Platform/Controls/StyledControlState.h"

namespace tidepool {

using platform::StyledControlState;

} // namespace tidepool
