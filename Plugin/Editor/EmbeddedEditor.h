#pragma once

#include "Plugin/Editor/EditorParameters.h"
#include "Plugin/Editor/EditorView.h"
#include "Plugin/Editor/HostKeyboard.h"

#include <QWindow>

#include <memory>

namespace noteloft::plugin {

/// An editor inside a window of the host's.
class EmbeddedEditor {
public:
    /// `parent` is the X11 window of the host, which may go before the editor.
    EmbeddedEditor(HostConnection host, std::uintptr_t parent);
    ~EmbeddedEditor();
    EmbeddedEditor(const EmbeddedEditor&) = delete;
    EmbeddedEditor& operator=(const EmbeddedEditor&) = delete;

    EditorParameters& parameters() { return m_parameters; }

    /// The X11 window of the editor.
    std::uintptr_t window() const { return m_view.winId(); }

    QSize size() const { return m_view.size(); }

private:
    HostConnection m_host;
    EditorParameters m_parameters;
    const std::unique_ptr<QWindow> m_parent; // stands for the host's window, and does not own it
    EditorView m_view;
    HostKeyboard m_keyboard;
};

} // namespace noteloft::plugin
