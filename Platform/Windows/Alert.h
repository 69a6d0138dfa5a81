#pragma once

#include <QString>

class QMessageBox;
class QWidget;

namespace platform {

/// An alert with the application's icon and no buttons yet. Show it with `show`: it blocks nothing, and
/// deletes itself when it is closed. Belongs to `parent` and stays above it; without one to the window that
/// is in front, and if the application shows none to the caller.
QMessageBox* makeAlert(const QString& message, const QString& informativeText, QWidget* parent = nullptr);

} // namespace platform
