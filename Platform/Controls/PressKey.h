#pragma once

#include <QKeyEvent>

namespace platform {

/// True for the keys that press what has the focus, also while one is held and repeats itself.
inline bool isPressKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace platform
