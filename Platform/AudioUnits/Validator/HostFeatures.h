#pragma once

#include "Platform/AudioUnits/Validator/UridMap.h"

#include <lv2/core/lv2.h>
#include <lv2/options/options.h>

#include <array>
#include <string_view>

namespace platform {

/// What the validating host offers to a plug-in. Not copyable, because plug-ins keep pointers into it.
class HostFeatures {
public:
    /// Blocks are never longer, in frames.
    static constexpr int maximumBlockLength = 4096;

    explicit HostFeatures(UridMap& urids);
    HostFeatures(const HostFeatures&) = delete;
    HostFeatures& operator=(const HostFeatures&) = delete;

    /// For instantiation: an array that ends with a null pointer.
    const LV2_Feature* const* list() const { return m_list.data(); }

    /// Whether a plug-in may require the feature.
    bool has(std::string_view uri) const;

private:
    static constexpr int featureCount = 6;

    int m_minimumBlockLength = 0;
    int m_maximumBlockLength = maximumBlockLength;
    std::array<LV2_Options_Option, 3> m_options;
    std::array<LV2_Feature, featureCount> m_features;
    std::array<const LV2_Feature*, featureCount + 1> m_list{};
};

} // namespace platform
