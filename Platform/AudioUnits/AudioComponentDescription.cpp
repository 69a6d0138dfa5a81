#include "Platform/AudioUnits/AudioComponentDescription.h"

namespace platform {

bool AudioComponentDescription::matches(const AudioComponentDescription& other) const {
    const auto same = [](std::uint32_t wanted, std::uint32_t code) { return wanted == 0 || wanted == code; };
    return same(componentType, other.componentType) && same(componentSubType, other.componentSubType) &&
           same(componentManufacturer, other.componentManufacturer) &&
           ((componentFlags ^ other.componentFlags) & componentFlagsMask) == 0;
}

} // namespace platform
