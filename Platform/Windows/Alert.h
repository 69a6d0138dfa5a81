#pragma once

#include <QString>

class QMessageBox;
class QWidget;

namespace platform {

/// An alert with the application's icon and no buttons yet. Show it with `show`: it blocks nothing, and
/// deletes itself when it is closed. Belongs to `parent`, or to the caller while there is none.
QMessageBox* makeAlert(const QString& message, const QString& informativeText, QWidget* parent = nullptr);

} // namespace platform
