#include "Tidepool/Events/DateUtil.h"

namespace tidepool {

namespace {

std::chrono::duration<double> distanceFromNow(const QDateTime& date) {
    return std::chrono::milliseconds(qAbs(date.msecsTo(QDateTime::currentDateTimeUtc())));
}

} // namespace

bool DateUtil::isOlder(const std::optional<QDateTime>& date, std::chrono::duration<double> interval,
                       bool ifNil) {
    return date ? interval < distanceFromNow(*date) : ifNil;
}

bool DateUtil::isRecent(const std::optional<QDateTime>& date, std::chrono::duration<double> interval,
                        bool ifNil) {
    return date ? distanceFromNow(*date) < interval : ifNil;
}

} // namespace tidepool
