#pragma once

#include "Platform/Core/Bundle.h"

namespace noteloft {

/// The bundle with the application's own assets, found on the first call and then kept.
const platform::Bundle& resourceBundle();

} // namespace noteloft
