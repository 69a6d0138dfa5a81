#pragma once

#include <QString>

namespace chorale {

/// What is known of a newer version.
struct UpdateAvailableDetails {
    QString newVersion;
};

} // namespace chorale
