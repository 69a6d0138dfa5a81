#pragma once

#include "Platform/Core/Bundle.h"

namespace chorale {

/// The module's bundle, looked for on the first call and then kept. Stops the program with "unable to find
/// bundle named Chorale_Chorale" if there is none.
const platform::Bundle& resourceBundle();

} // namespace chorale
