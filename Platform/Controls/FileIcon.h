#pragma once

#include <QIcon>

namespace platform {

/// The desktop's icon for the type of the file at `path`, at the sizes of a menu, up to 16 points. The type
/// is known by the name: the file is not read and need not exist.
QIcon fileIcon(const QString& path);

} // namespace platform
