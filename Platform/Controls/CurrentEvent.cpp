#include "Platform/Controls/CurrentEvent.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QKeyEvent>

#include <utility>

namespace platform {

namespace {

std::optional<UserEvent> current;

bool isModifier(const QEvent& event) {
    switch (static_cast<const QKeyEvent&>(event).key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return true;
    default:
        return false;
    }
}

bool isUserEvent(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return !isModifier(event);
    default:
        return false;
    }
}

class Recorder : public QObject {
public:
    Recorder() : QObject(QCoreApplication::instance()) { // not always one of widgets
        parent()->installEventFilter(this);
        // When the application waits for the next event it has done with this one.
        if (auto* const dispatcher = QAbstractEventDispatcher::instance())
            connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [] { current.reset(); });
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (isUserEvent(*event))
            current = UserEvent{event->type(), static_cast<QInputEvent*>(event)->modifiers()};
        return false;
    }
};

void startRecording() {
    new Recorder;
}

} // namespace

std::optional<UserEvent> currentEvent() {
    return current;
}

CurrentEventScope::CurrentEventScope(std::optional<UserEvent> event)
    : m_former(std::exchange(current, event)) {}

CurrentEventScope::~CurrentEventScope() {
    current = m_former;
}

} // namespace platform

using platform::startRecording;
Q_COREAPP_STARTUP_FUNCTION(startRecording)
