#include "Chorale/ParameterSteps.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ParameterGesture.h"

#include <cmath>

namespace chorale {

float stepSize(const AudioParameter& parameter) {
    constexpr float steps = 100;
    const auto& range = parameter.valueRange();
    const bool isIndexed = parameter.valueStrings() && !parameter.valueStrings()->isEmpty();
    return isIndexed ? 1 : (range.upperBound() - range.lowerBound()) / steps;
}

void step(const std::shared_ptr<AudioParameter>& parameter, float count) {
    ParameterGesture gesture(parameter);
    const float value = parameter->latestValue() + count * stepSize(*parameter);
    const bool isIndexed = parameter->valueStrings() && !parameter->valueStrings()->isEmpty();
    gesture.setValue(isIndexed ? std::round(value) : value);
}

} // namespace chorale
