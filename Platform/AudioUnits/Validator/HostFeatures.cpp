#include "Platform/AudioUnits/Validator/HostFeatures.h"

#include <lv2/atom/atom.h>
#include <lv2/buf-size/buf-size.h>

#include <algorithm>

namespace platform {

HostFeatures::HostFeatures(UridMap& urids)
    : m_features{{{LV2_URID__map, &urids.map},
                  {LV2_URID__unmap, &urids.unmap},
                  {LV2_OPTIONS__options, m_options.data()},
                  {LV2_BUF_SIZE__boundedBlockLength, nullptr},
                  {LV2_CORE__hardRTCapable, nullptr},
                  {LV2_CORE__inPlaceBroken, nullptr}}} {
    const LV2_URID integer = urids.id(LV2_ATOM__Int);
    const auto option = [&](const char* key, const int& value) {
        return LV2_Options_Option{LV2_OPTIONS_INSTANCE, 0, urids.id(key), sizeof value, integer, &value};
    };
    m_options = {option(LV2_BUF_SIZE__minBlockLength, m_minimumBlockLength),
                 option(LV2_BUF_SIZE__maxBlockLength, m_maximumBlockLength),
                 LV2_Options_Option{LV2_OPTIONS_INSTANCE, 0, 0, 0, 0, nullptr}};
    std::transform(m_features.begin(), m_features.end(), m_list.begin(),
                   [](const LV2_Feature& feature) { return &feature; });
}

bool HostFeatures::has(std::string_view uri) const {
    return std::any_of(m_features.begin(), m_features.end(),
                       [uri](const LV2_Feature& feature) { return uri == feature.URI; });
}

} // namespace platform
