#include "Plugin/Editor/EmbeddedEditor.h"

#include <utility>

namespace noteloft::plugin {

EmbeddedEditor::EmbeddedEditor(HostConnection host, std::uintptr_t parent)
    : m_host(std::move(host)),
      m_parameters(m_host),
      m_parent(QWindow::fromWinId(parent)),
      m_view(m_parameters),
      m_keyboard(m_view) {
    m_view.setWindowFlag(Qt::FramelessWindowHint);
    m_view.winId();
    m_view.windowHandle()->setParent(m_parent.get());
    m_view.move(0, 0);
    m_view.show();
}

EmbeddedEditor::~EmbeddedEditor() {
    m_keyboard.giveBack();
    m_view.hide();
    m_view.windowHandle()->setParent(nullptr);
}

} // namespace noteloft::plugin
