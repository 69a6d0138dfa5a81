#pragma once

#include <cstdint>

namespace platform {

/// The codes of an audio component, or of those to look for: there a zero code stands for any, and only the
/// flags in the mask are compared.
struct AudioComponentDescription {
    std::uint32_t componentType = 0;
    std::uint32_t componentSubType = 0;
    std::uint32_t componentManufacturer = 0;
    std::uint32_t componentFlags = 0;
    std::uint32_t componentFlagsMask = 0;

    bool operator==(const AudioComponentDescription&) const = default;

    /// Whether `other`, the description of a component, is one that this description looks for.
    bool matches(const AudioComponentDescription& other) const;
};

} // namespace platform
