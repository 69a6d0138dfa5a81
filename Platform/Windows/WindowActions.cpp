#include "Platform/Windows/WindowActions.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace platform {

WindowActions::WindowActions(QList<QAction*> actions) : m_actions(std::move(actions)) {
    qApp->installEventFilter(this);
}

bool WindowActions::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Show || !watched->isWidgetType())
        return false;
    auto* const window = static_cast<QWidget*>(watched);
    const bool takesKeys = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    if (takesKeys && !window->actions().contains(m_actions.value(0)))
        window->addActions(m_actions);
    return false;
}

} // namespace platform
