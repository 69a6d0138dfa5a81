// The functions that a host calls.
#include "Plugin/NoteloftPlugin.h"

#include <atomic>
#include <chrono>
#include <cstring>
#include <new>

using noteloft::plugin::NoteloftPlugin;

namespace {

/// Instances begin within one tick of some clocks, so the count is mixed in, too.
std::uint32_t newSeed() {
    static std::atomic<std::uint32_t> count = 0;
    constexpr std::uint32_t golden = 0x9E3779B9;
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    return (static_cast<std::uint32_t>(now ^ now >> 32) + ++count * golden) &
           0x7FFFFFFF; // an Int of a session
}

LV2_Handle instantiate(const LV2_Descriptor*, double sampleRate, const char*,
                       const LV2_Feature* const* features) {
    for (; features != nullptr && *features != nullptr; ++features)
        if (std::strcmp((*features)->URI, LV2_URID__map) == 0)
            return new (std::nothrow)
                NoteloftPlugin(sampleRate, *static_cast<const LV2_URID_Map*>((*features)->data), newSeed());
    return nullptr;
}

NoteloftPlugin& plugin(LV2_Handle handle) {
    return *static_cast<NoteloftPlugin*>(handle);
}

const LV2_State_Interface state = {
    [](LV2_Handle handle, LV2_State_Store_Function store, LV2_State_Handle session, std::uint32_t,
       const LV2_Feature* const*) { return plugin(handle).save(store, session); },
    [](LV2_Handle handle, LV2_State_Retrieve_Function retrieve, LV2_State_Handle session, std::uint32_t,
       const LV2_Feature* const*) { return plugin(handle).restore(retrieve, session); },
};

const LV2_Descriptor descriptor = {
    NoteloftPlugin::uri,
    instantiate,
    [](LV2_Handle handle, std::uint32_t port, void* data) { plugin(handle).connect(port, data); },
    [](LV2_Handle handle) { plugin(handle).activate(); },
    [](LV2_Handle handle, std::uint32_t frameCount) { plugin(handle).run(frameCount); },
    nullptr, // Nothing can be sent while deactivated; what sounds is ended after the next activation.
    [](LV2_Handle handle) { delete &plugin(handle); },
    [](const char* uri) -> const void* {
        return std::strcmp(uri, LV2_STATE__interface) == 0 ? &state : nullptr;
    },
};

} // namespace

LV2_SYMBOL_EXPORT const LV2_Descriptor* lv2_descriptor(std::uint32_t index) {
    return index == 0 ? &descriptor : nullptr;
}
