// The functions that a host calls to show the editor.
#include "Plugin/Editor/EditorResources.h"
#include "Plugin/Editor/EmbeddedEditor.h"
#include "Plugin/Editor/QtSession.h"

#include <cstring>

using namespace noteloft::plugin;

namespace {

/// What the host offers; null where it does not.
struct Features {
    explicit Features(const LV2_Feature* const* features) {
        for (; features != nullptr && *features != nullptr; ++features) {
            const LV2_Feature& feature = **features;
            if (std::strcmp(feature.URI, LV2_UI__parent) == 0)
                parent = feature.data;
            else if (std::strcmp(feature.URI, LV2_UI__touch) == 0)
                touch = static_cast<const LV2UI_Touch*>(feature.data);
            else if (std::strcmp(feature.URI, LV2_UI__resize) == 0)
                resize = static_cast<const LV2UI_Resize*>(feature.data);
        }
    }

    void* parent = nullptr;
    const LV2UI_Touch* touch = nullptr;
    const LV2UI_Resize* resize = nullptr;
};

EmbeddedEditor& editor(LV2UI_Handle handle) {
    return *static_cast<EmbeddedEditor*>(handle);
}

LV2UI_Handle instantiate(const LV2UI_Descriptor*, const char*, const char* bundlePath,
                         LV2UI_Write_Function write, LV2UI_Controller controller, LV2UI_Widget* widget,
                         const LV2_Feature* const* features) {
    const Features offered(features);
    if (offered.parent == nullptr || !QtSession::begin())
        return nullptr;
    loadDisplayFont(QString::fromLocal8Bit(bundlePath));
    auto* const made = new EmbeddedEditor(HostConnection(write, controller, offered.touch),
                                          reinterpret_cast<std::uintptr_t>(offered.parent));
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the interface passes windows as
    *widget = reinterpret_cast<LV2UI_Widget>(made->window());
    if (offered.resize != nullptr)
        offered.resize->ui_resize(offered.resize->handle, made->size().width(), made->size().height());
    return made;
}

void receive(LV2UI_Handle handle, std::uint32_t port, std::uint32_t size, std::uint32_t format,
             const void* buffer) {
    float value = 0;
    if (format != 0 || size != sizeof value)
        return;
    std::memcpy(&value, buffer, sizeof value);
    editor(handle).parameters().receive(port, value);
}

const LV2UI_Idle_Interface idle = {[](LV2UI_Handle) {
    QtSession::pump();
    return 0;
}};

const LV2UI_Descriptor descriptor = {
    "http://quillfen.example/plugins/noteloft#ui",
    instantiate,
    [](LV2UI_Handle handle) {
        delete &editor(handle);
        QtSession::pump(); // The window goes now; the host may never call again.
    },
    receive,
    [](const char* uri) -> const void* {
        return std::strcmp(uri, LV2_UI__idleInterface) == 0 ? &idle : nullptr;
    },
};

} // namespace

LV2_SYMBOL_EXPORT const LV2UI_Descriptor* lv2ui_descriptor(std::uint32_t index) {
    return index == 0 ? &descriptor : nullptr;
}
