#pragma once

#include <memory>

namespace chorale {

class AudioParameter;

/// What one step of the keyboard or the wheel changes a parameter by: 1 where values have names, else a
/// hundredth of the range.
float stepSize(const AudioParameter& parameter);

/// Changes the value by `count` steps, as one gesture. Main thread.
void step(const std::shared_ptr<AudioParameter>& parameter, float count);

} // namespace chorale
