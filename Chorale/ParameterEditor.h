#pragma once

#include <cstdint>

namespace chorale {

/// Where a change of a parameter comes from.
enum class ParameterEditor : std::uint8_t {
    /// From the host or the audio unit itself.
    parameterObserver = 0,
    /// From a control on screen.
    ui = 1,
};

} // namespace chorale
