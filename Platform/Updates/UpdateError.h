#pragma once

#include <QString>

namespace platform {

/// Why a check failed, in sentences for people.
struct UpdateError {
    QString message;
    /// What the user can do.
    QString advice;
};

} // namespace platform
