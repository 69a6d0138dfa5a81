#pragma once

#include "Plugin/Editor/EditorParameters.h"
#include "Plugin/Editor/EditorView.h"
#include "Plugin/Editor/EmbeddedAccessibility.h"
#include "Plugin/Editor/HostKeyboard.h"

#include <QWindow>

#include <lv2/ui/ui.h>

#include <memory>
#include <optional>

namespace noteloft::plugin {

/// An editor inside a window of the host's.
class EmbeddedEditor {
public:
    /// `parent` is the X11 window of the host, which may go before the editor. `resize` may be null; it is
    /// told pixels. `scale` is what the host wants, in pixels for each point; the desktop's without one.
    EmbeddedEditor(HostConnection host, std::uintptr_t parent, const LV2UI_Resize* resize,
                   std::optional<qreal> scale);
    ~EmbeddedEditor();
    EmbeddedEditor(const EmbeddedEditor&) = delete;
    EmbeddedEditor& operator=(const EmbeddedEditor&) = delete;

    EditorParameters& parameters() { return m_parameters; }

    /// The X11 window of the editor.
    std::uintptr_t window() const { return m_view.winId(); }

    /// Pixels for each point, as the host wants them or the desktop has them.
    qreal scale() const { return m_scale.value_or(m_view.devicePixelRatioF()); }

    void setScale(qreal scale) { m_scale = scale; }

    /// What is to be done at each idle call of the host.
    void idle();

    /// Fits the view to the scales of the host and of the desktop, either of which may change at any time.
    void followScale();

private:
    HostConnection m_host;
    EditorParameters m_parameters;
    const LV2UI_Resize* const m_resize;
    std::optional<qreal> m_scale;            // the host's
    qreal m_shownScale = 1;                  // the view's
    qreal m_pixels = 1;                      // the desktop's, for each of its points
    const std::unique_ptr<QWindow> m_parent; // stands for the host's window, and does not own it
    EditorView m_view;
    const EmbeddedAccessibility m_accessibility{m_view};
    std::optional<HostKeyboard> m_keyboard;
};

} // namespace noteloft::plugin
