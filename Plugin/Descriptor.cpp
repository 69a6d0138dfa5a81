// The functions that a host calls.
#include "Plugin/NoteloftPlugin.h"

#include <cstring>
#include <new>

using noteloft::plugin::NoteloftPlugin;

namespace {

LV2_Handle instantiate(const LV2_Descriptor*, double sampleRate, const char*,
                       const LV2_Feature* const* features) {
    for (; features != nullptr && *features != nullptr; ++features)
        if (std::strcmp((*features)->URI, LV2_URID__map) == 0)
            return new (std::nothrow)
                NoteloftPlugin(sampleRate, *static_cast<const LV2_URID_Map*>((*features)->data));
    return nullptr;
}

NoteloftPlugin& plugin(LV2_Handle handle) {
    return *static_cast<NoteloftPlugin*>(handle);
}

const LV2_Descriptor descriptor = {
    NoteloftPlugin::uri,
    instantiate,
    [](LV2_Handle handle, std::uint32_t port, void* data) { plugin(handle).connect(port, data); },
    [](LV2_Handle handle) { plugin(handle).activate(); },
    [](LV2_Handle handle, std::uint32_t frameCount) { plugin(handle).run(frameCount); },
    nullptr, // Nothing can be sent while deactivated; what sounds is ended after the next activation.
    [](LV2_Handle handle) { delete &plugin(handle); },
    nullptr,
};

} // namespace

LV2_SYMBOL_EXPORT const LV2_Descriptor* lv2_descriptor(std::uint32_t index) {
    return index == 0 ? &descriptor : nullptr;
}
