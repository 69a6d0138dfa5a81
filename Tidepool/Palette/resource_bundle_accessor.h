#pragma once

#include "Platform/Core/Bundle.h"

namespace tidepool {

/// The kit's bundle, looked for on the first call and then kept. Stops the program with "unable to find
/// bundle named Tidepool_Tidepool" if there is none.
const platform::Bundle& resourceBundle();

} // namespace tidepool
