#pragma once

#include "Platform/Core/MainQueue.h"
#include "Platform/Core/MainThread.h"
#include "Platform/Publishing/Publisher.h"

#include <QPointer>
#include <QWidget>

namespace tidepool {

/// Gives `view` the keyboard, and its window too; nothing while it is in no window that is shown.
void focus(QWidget* view);

/// Gives `view` the keyboard for every value, on the main thread, until the result is cancelled or destroyed.
/// `view` may go first.
template <typename Output>
platform::AnyCancellable focusOnOutput(platform::Publisher<Output>& publisher, QWidget& view) {
    return publisher.sink([view = QPointer(&view)](const Output&) {
        if (platform::isMainThread())
            focus(view);
        else
            platform::MainQueue::async([view] { focus(view); });
    });
}

} // namespace tidepool
