#pragma once

#include <QObject>

namespace platform {

/// Names a slot `void name(QObject* sender)` of whoever answers to it.
struct Selector {
    const char* name;
};

/// Who is asked when an action has no target and no view answers; null for nobody. Not owned.
void setApplicationDelegate(QObject* delegate);

/// Who is asked after the application's delegate; null for nobody. Not owned.
void setDocumentController(QObject* controller);

/// True if `object` has the slot that `selector` names.
bool respondsTo(const QObject* object, Selector selector);

/// `target` if it responds; without a target the first that does of: the widget with the keyboard focus and
/// its ancestors, up to and with their window, then the active window, then the application's delegate, then
/// the document controller. Null if none does.
QObject* targetForAction(Selector selector, QObject* target = nullptr);

/// Invokes the slot on the action's target. False if nobody responds. Main thread.
bool sendAction(Selector selector, QObject* target, QObject* sender);

} // namespace platform
