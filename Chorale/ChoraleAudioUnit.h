#pragma once

#include "Platform/AudioUnits/AUAudioUnit.h"

namespace chorale {

/// An audio unit whose parameters are `AudioParameter` models.
class ChoraleAudioUnit : public platform::AUAudioUnit {
public:
    /// Gets every value that is to be applied: the initial ones, then all that reach the tree's observer, as
    /// they came, not clamped. On the thread that sets the value, which may render audio.
    virtual void applyParameterValue(platform::AUParameterAddress address, float value) = 0;
};

} // namespace chorale
