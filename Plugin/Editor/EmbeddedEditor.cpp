#include "Plugin/Editor/EmbeddedEditor.h"

#include <utility>

namespace noteloft::plugin {

EmbeddedEditor::EmbeddedEditor(HostConnection host, std::uintptr_t parent, const LV2UI_Resize* resize,
                               std::optional<qreal> scale)
    : m_host(std::move(host)),
      m_parameters(m_host),
      m_resize(resize),
      m_scale(scale),
      m_parent(QWindow::fromWinId(parent)),
      m_view(m_parameters) {
    m_view.setWindowFlag(Qt::FramelessWindowHint);
    m_view.winId();
    m_view.windowHandle()->setParent(m_parent.get());
    m_view.move(0, 0);
    followScale();
    m_view.show();
}

EmbeddedEditor::~EmbeddedEditor() {
    m_keyboard->giveBack();
    m_view.hide();
    m_view.windowHandle()->setParent(nullptr);
}

void EmbeddedEditor::idle() {
    followScale();
    m_keyboard->look();
}

void EmbeddedEditor::followScale() {
    const qreal pixels = m_view.devicePixelRatioF();
    const qreal shown = scale() / pixels;
    if (m_keyboard && shown == m_shownScale && pixels == m_pixels)
        return;
    if (m_keyboard)
        m_keyboard->giveBack();
    m_keyboard.reset();
    // What is drawn before has the old pixels, too.
    m_view.setScale(shown);
    m_shownScale = shown;
    m_pixels = pixels;
    // The window and what it is drawn from have kept their size in pixels; Qt sees no change in points.
    const QSize points = m_view.size();
    m_view.setFixedSize(points + QSize(1, 1));
    m_view.repaint();
    m_view.setFixedSize(points);
    m_keyboard.emplace(m_view);
    const QSize size = (QSizeF(points) * pixels).toSize();
    if (m_resize != nullptr)
        m_resize->ui_resize(m_resize->handle, size.width(), size.height());
}

} // namespace noteloft::plugin
