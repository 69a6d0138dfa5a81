#pragma once

#include <QDateTime>

#include <chrono>
#include <optional>

namespace tidepool {

/// Tests of how far a date is from now, in either direction.
struct DateUtil {
    /// True if the distance is more than `interval`; `ifNil` without a date.
    static bool isOlder(const std::optional<QDateTime>& date, std::chrono::duration<double> interval,
                        bool ifNil);

    /// True if the distance is less than `interval`; `ifNil` without a date.
    static bool isRecent(const std::optional<QDateTime>& date, std::chrono::duration<double> interval,
                         bool ifNil);
};

} // namespace tidepool
