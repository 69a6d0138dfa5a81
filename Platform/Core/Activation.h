#pragma once

#include <QString>

class QWindow;

namespace platform {

/// What the desktop gave a start of the program, so that its window may come to the front. Empty for none.
struct ActivationToken {
    /// Of the Wayland protocol xdg-activation.
    QString wayland;
    /// The startup identifier of X11's startup notification.
    QString x11;

    /// That of this process.
    static ActivationToken fromEnvironment();
};

/// Brings `window`, which is shown, to the front and gives it the keyboard, by right of the start that got
/// `token`, and tells the desktop that this start has ended. An empty token does what is allowed without one.
/// Main thread.
void activate(QWindow& window, const ActivationToken& token);

} // namespace platform
