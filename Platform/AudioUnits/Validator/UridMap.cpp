#include "Platform/AudioUnits/Validator/UridMap.h"

#include <algorithm>

namespace platform {

UridMap::UridMap() {
    map = {this, [](LV2_URID_Map_Handle handle, const char* uri) {
               return static_cast<UridMap*>(handle)->id(uri);
           }};
    unmap = {this, [](LV2_URID_Unmap_Handle handle, LV2_URID id) -> const char* {
                 const auto& uris = static_cast<UridMap*>(handle)->m_uris;
                 return id > 0 && id <= uris.size() ? uris[id - 1].c_str() : nullptr;
             }};
}

LV2_URID UridMap::id(const char* uri) {
    auto found = std::find(m_uris.begin(), m_uris.end(), uri);
    if (found == m_uris.end())
        found = m_uris.insert(found, uri);
    return static_cast<LV2_URID>(found - m_uris.begin() + 1);
}

} // namespace platform
