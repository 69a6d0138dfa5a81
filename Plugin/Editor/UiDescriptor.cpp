// The functions that a host calls to show the editor.
#include "Plugin/Editor/EditorResources.h"
#include "Plugin/Editor/EmbeddedEditor.h"
#include "Plugin/Editor/QtSession.h"

#include <lv2/atom/atom.h>
#include <lv2/options/options.h>
#include <lv2/urid/urid.h>

#include <cstring>
#include <optional>

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
            else if (std::strcmp(feature.URI, LV2_URID__map) == 0)
                map = static_cast<const LV2_URID_Map*>(feature.data);
            else if (std::strcmp(feature.URI, LV2_OPTIONS__options) == 0)
                options = static_cast<const LV2_Options_Option*>(feature.data);
        }
    }

    void* parent = nullptr;
    const LV2UI_Touch* touch = nullptr;
    const LV2UI_Resize* resize = nullptr;
    const LV2_URID_Map* map = nullptr;
    const LV2_Options_Option* options = nullptr;
};

/// The option that says how large the host wants the editor.
class ScaleOption {
public:
    /// Without a map no option is known.
    explicit ScaleOption(const LV2_URID_Map* map) {
        if (map == nullptr)
            return;
        m_key = map->map(map->handle, LV2_UI__scaleFactor);
        m_float = map->map(map->handle, LV2_ATOM__Float);
    }

    bool isKeyOf(const LV2_Options_Option& option) const { return m_key != 0 && option.key == m_key; }

    LV2_URID type() const { return m_float; }

    /// None for what is no scale to draw at.
    std::optional<float> valueOf(const LV2_Options_Option& option) const {
        constexpr float smallest = 0.25F;
        constexpr float largest = 8;
        float value = 0;
        if (option.type != m_float || option.size != sizeof value || option.value == nullptr)
            return {};
        std::memcpy(&value, option.value, sizeof value);
        return value >= smallest && value <= largest ? std::optional(value) : std::nullopt;
    }

    std::optional<float> find(const LV2_Options_Option* options) const {
        for (; options != nullptr && (options->key != 0 || options->value != nullptr); ++options)
            if (isKeyOf(*options))
                return valueOf(*options);
        return {};
    }

private:
    LV2_URID m_key = 0;
    LV2_URID m_float = 0;
};

/// What a host has a handle of.
struct Instance {
    ScaleOption scaleOption;
    EmbeddedEditor editor;
    float scale = 1; ///< What the host was told last.
};

Instance& instance(LV2UI_Handle handle) {
    return *static_cast<Instance*>(handle);
}

LV2UI_Handle instantiate(const LV2UI_Descriptor*, const char*, const char* bundlePath,
                         LV2UI_Write_Function write, LV2UI_Controller controller, LV2UI_Widget* widget,
                         const LV2_Feature* const* features) {
    const Features offered(features);
    if (offered.parent == nullptr || !QtSession::begin())
        return nullptr;
    loadDisplayFont(QString::fromLocal8Bit(bundlePath));
    const ScaleOption option(offered.map);
    auto* const made = new Instance{option,
                                    {HostConnection(write, controller, offered.touch),
                                     reinterpret_cast<std::uintptr_t>(offered.parent), offered.resize,
                                     option.find(offered.options)}};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the interface passes windows as
    *widget = reinterpret_cast<LV2UI_Widget>(made->editor.window());
    return made;
}

void receive(LV2UI_Handle handle, std::uint32_t port, std::uint32_t size, std::uint32_t format,
             const void* buffer) {
    float value = 0;
    if (format != 0 || size != sizeof value)
        return;
    std::memcpy(&value, buffer, sizeof value);
    instance(handle).editor.parameters().receive(port, value);
}

const LV2UI_Idle_Interface idle = {[](LV2UI_Handle handle) {
    QtSession::pump();
    instance(handle).editor.idle();
    return 0;
}};

std::uint32_t getOptions(LV2_Handle handle, LV2_Options_Option* options) {
    std::uint32_t status = LV2_OPTIONS_SUCCESS;
    Instance& asked = instance(handle);
    for (; options->key != 0; ++options) {
        if (!asked.scaleOption.isKeyOf(*options)) {
            status |= LV2_OPTIONS_ERR_BAD_KEY;
            continue;
        }
        asked.scale = static_cast<float>(asked.editor.scale());
        options->type = asked.scaleOption.type();
        options->size = sizeof asked.scale;
        options->value = &asked.scale;
    }
    return status;
}

std::uint32_t setOptions(LV2_Handle handle, const LV2_Options_Option* options) {
    std::uint32_t status = LV2_OPTIONS_SUCCESS;
    Instance& told = instance(handle);
    for (; options->key != 0; ++options) {
        if (!told.scaleOption.isKeyOf(*options))
            status |= LV2_OPTIONS_ERR_BAD_KEY;
        else if (const auto scale = told.scaleOption.valueOf(*options))
            told.editor.setScale(*scale);
        else
            status |= LV2_OPTIONS_ERR_BAD_VALUE;
    }
    told.editor.followScale();
    return status;
}

const LV2_Options_Interface optionsInterface = {getOptions, setOptions};

const LV2UI_Descriptor descriptor = {
    "http://quillfen.example/plugins/noteloft#ui",
    instantiate,
    [](LV2UI_Handle handle) {
        delete &instance(handle);
        QtSession::pump(); // The window goes now; the host may never call again.
    },
    receive,
    [](const char* uri) -> const void* {
        if (std::strcmp(uri, LV2_OPTIONS__interface) == 0)
            return &optionsInterface;
        return std::strcmp(uri, LV2_UI__idleInterface) == 0 ? &idle : nullptr;
    },
};

} // namespace

LV2_SYMBOL_EXPORT const LV2UI_Descriptor* lv2ui_descriptor(std::uint32_t index) {
    return index == 0 ? &descriptor : nullptr;
}
