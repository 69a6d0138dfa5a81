#pragma once

#include <QColor>
#include <QString>

namespace tidepool {

/// For debugging: the name of the colour's space and its components between 0 and 1, opacity last.
QString colorDescription(const QColor& color);

} // namespace tidepool
