#include "Platform/Windows/ViewController.h"

#include <QEvent>

namespace platform {

ViewController::ViewController(QWidget* view) : m_view(view) {
    view->installEventFilter(this);
}

bool ViewController::eventFilter(QObject* watched, QEvent* event) {
    // Spontaneous events come from the window system, which maps and unmaps windows that are still there.
    if (watched != m_view || event->spontaneous())
        return false;
    if (event->type() == QEvent::Show) {
        viewWillAppear();
        viewDidAppear();
    } else if (event->type() == QEvent::Hide) {
        viewDidDisappear();
    }
    return false;
}

} // namespace platform
