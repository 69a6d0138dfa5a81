#pragma once

#include "tests/Plugin/X11Screen.h"

#include <gtest/gtest.h>
#include <lv2/ui/ui.h>

#include <dlfcn.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
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

/// A host with one editor.
class EditorHost {
public:
    explicit EditorHost(X11Screen& screen, std::int16_t y = 0,
                        const LV2UI_Descriptor& editor = editorDescriptor())
        : m_descriptor(editor), m_screen(screen), m_window(screen.makeWindow(y)) {
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

    const LV2UI_Descriptor& m_descriptor;
    X11Screen& m_screen;
    const std::uint32_t m_window;
    LV2UI_Touch m_touch{this, touch};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the interface passes windows as
    LV2_Feature m_parentFeature{LV2_UI__parent, reinterpret_cast<void*>(std::uintptr_t{m_window})};
    LV2_Feature m_touchFeature{LV2_UI__touch, &m_touch};
    const LV2_Feature* const m_features[3] = {&m_parentFeature, &m_touchFeature, nullptr};
    LV2UI_Handle m_editor = nullptr;
    LV2UI_Widget m_widget = nullptr;
    std::vector<std::string> m_heard;
};
