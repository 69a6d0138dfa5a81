#pragma once

#include "tests/Plugin/X11Screen.h"

#include <gtest/gtest.h>
#include <lv2/atom/atom.h>
#include <lv2/options/options.h>
#include <lv2/ui/ui.h>
#include <lv2/urid/urid.h>

#include <dlfcn.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

/// What the editor's library at `path` offers.
inline const LV2UI_Descriptor& loadEditor(const char* path) {
    void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    const auto find = library == nullptr
                          ? nullptr
                          : reinterpret_cast<LV2UI_DescriptorFunction>(dlsym(library, "lv2ui_descriptor"));
    if (find == nullptr) {
        ADD_FAILURE() << dlerror();
        std::abort();
    }
    return *find(0);
}

/// The editor that was built.
inline const LV2UI_Descriptor& editorDescriptor() {
    static const LV2UI_Descriptor& loaded = loadEditor(NOTELOFT_EDITOR);
    return loaded;
}

/// A host with one editor. It wants a scale unless that is 0.
class EditorHost {
public:
    explicit EditorHost(X11Screen& screen, std::int16_t y = 0,
                        const LV2UI_Descriptor& editor = editorDescriptor(), float scale = 0)
        : m_descriptor(editor),
          m_screen(screen),
          m_window(screen.makeWindow(y)),
          m_scale(scale),
          m_options{scaleOption(m_scale == 0 ? nullptr : &m_scale), {}} {
        m_editor = m_descriptor.instantiate(&m_descriptor, "http://quillfen.example/plugins/noteloft",
                                            NOTELOFT_EDITOR_FOLDER, write, this, &m_widget, m_features);
        EXPECT_NE(m_editor, nullptr);
        EXPECT_NE(m_widget, nullptr);
    }

    ~EditorHost() { close(false); }

    EditorHost(const EditorHost&) = delete;
    EditorHost& operator=(const EditorHost&) = delete;

    void close(bool destroysWindowFirst) {
        if (m_editor == nullptr)
            return;
        if (destroysWindowFirst) {
            m_screen.destroyWindow(m_window);
            idle(2);
        }
        m_descriptor.cleanup(std::exchange(m_editor, nullptr));
        if (!destroysWindowFirst)
            m_screen.destroyWindow(m_window);
    }

    void idle(int times = 10) {
        const auto* const interface =
            static_cast<const LV2UI_Idle_Interface*>(m_descriptor.extension_data(LV2_UI__idleInterface));
        for (int i = 0; i < times && m_editor != nullptr; ++i) {
            interface->idle(m_editor);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    void send(std::uint32_t port, float value) {
        m_descriptor.port_event(m_editor, port, sizeof value, 0, &value);
        idle();
    }

    std::uint32_t window() const { return m_window; }

    std::uint32_t editorWindow() const {
        return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(m_widget));
    }

    /// What the host was asked to resize itself to, in pixels.
    std::vector<std::pair<int, int>> takeSizes() { return std::exchange(m_sizes, {}); }

    std::uint32_t setScale(float scale) {
        const auto* const interface =
            static_cast<const LV2_Options_Interface*>(m_descriptor.extension_data(LV2_OPTIONS__interface));
        const LV2_Options_Option options[] = {scaleOption(&scale), {}};
        return interface->set(m_editor, options);
    }

    float scale() {
        const auto* const interface =
            static_cast<const LV2_Options_Interface*>(m_descriptor.extension_data(LV2_OPTIONS__interface));
        LV2_Options_Option options[] = {scaleOption(nullptr), {}};
        EXPECT_EQ(interface->get(m_editor, options), LV2_OPTIONS_SUCCESS);
        return *static_cast<const float*>(options[0].value);
    }

    std::vector<std::string> take() { return std::exchange(m_heard, {}); }

private:
    static void write(LV2UI_Controller host, std::uint32_t port, std::uint32_t size, std::uint32_t format,
                      const void* buffer) {
        EXPECT_EQ(size, sizeof(float));
        EXPECT_EQ(format, 0U);
        std::ostringstream message;
        message << port << '=' << *static_cast<const float*>(buffer);
        static_cast<EditorHost*>(host)->m_heard.push_back(message.str());
    }

    static void touch(LV2UI_Feature_Handle host, std::uint32_t port, bool isTouched) {
        static_cast<EditorHost*>(host)->m_heard.push_back((isTouched ? "touch " : "release ") +
                                                          std::to_string(port));
    }

    static int resize(LV2UI_Feature_Handle host, int width, int height) {
        static_cast<EditorHost*>(host)->m_sizes.emplace_back(width, height);
        return 0;
    }

    static LV2_URID mapUri(LV2_URID_Map_Handle, const char* uri) {
        static std::map<std::string, LV2_URID> known;
        return known.try_emplace(uri, static_cast<LV2_URID>(known.size() + 1)).first->second;
    }

    static LV2_Options_Option scaleOption(const float* scale) {
        return {LV2_OPTIONS_INSTANCE,
                0,
                mapUri(nullptr, LV2_UI__scaleFactor),
                sizeof *scale,
                mapUri(nullptr, LV2_ATOM__Float),
                scale};
    }

    const LV2UI_Descriptor& m_descriptor;
    X11Screen& m_screen;
    const std::uint32_t m_window;
    LV2UI_Touch m_touch{this, touch};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the interface passes windows as
    LV2_Feature m_parentFeature{LV2_UI__parent, reinterpret_cast<void*>(std::uintptr_t{m_window})};
    LV2_Feature m_touchFeature{LV2_UI__touch, &m_touch};
    LV2UI_Resize m_resize{this, resize};
    LV2_Feature m_resizeFeature{LV2_UI__resize, &m_resize};
    LV2_URID_Map m_map{nullptr, mapUri};
    LV2_Feature m_mapFeature{LV2_URID__map, &m_map};
    const float m_scale;
    const LV2_Options_Option m_options[2];
    LV2_Feature m_optionsFeature{LV2_OPTIONS__options, const_cast<LV2_Options_Option*>(m_options)};
    const LV2_Feature* const m_features[6] = {&m_parentFeature, &m_touchFeature,   &m_resizeFeature,
                                              &m_mapFeature,    &m_optionsFeature, nullptr};
    LV2UI_Handle m_editor = nullptr;
    LV2UI_Widget m_widget = nullptr;
    std::vector<std::string> m_heard;
    std::vector<std::pair<int, int>> m_sizes;
};
