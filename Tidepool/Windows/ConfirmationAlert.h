#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace tidepool {

/// Asks in a modal alert with the buttons `confirmTitle` and "Cancel" whether to do something, and runs
/// `action` if the first is chosen. Returns at once; the alert belongs to `parent`, which may be null.
void showConfirmationAlert(QWidget* parent, const QString& message, const QString& informativeText,
                           const QString& confirmTitle, std::function<void()> action);

} // namespace tidepool
