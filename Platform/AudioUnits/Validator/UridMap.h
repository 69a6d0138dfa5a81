#pragma once

#include <lv2/urid/urid.h>

#include <deque>
#include <string>

namespace platform {

/// The numbers that stand for URIs between a plug-in and its host. One thread.
class UridMap {
public:
    UridMap();
    UridMap(const UridMap&) = delete;
    UridMap& operator=(const UridMap&) = delete;

    LV2_URID id(const char* uri);

    LV2_URID_Map map;
    LV2_URID_Unmap unmap;

private:
    // A deque, because plug-ins keep the pointers that they are given.
    std::deque<std::string> m_uris;
};

} // namespace platform
