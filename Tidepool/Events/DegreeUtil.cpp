#include "Tidepool/Events/DegreeUtil.h"

#include <cmath>
#include <numbers>

namespace tidepool {

double DegreeUtil::normalizedDegrees(double degrees) {
    const double rest = std::fmod(degrees, 360);
    if (rest > 180)
        return rest - 360;
    return rest <= -180 ? rest + 360 : rest;
}

double DegreeUtil::radians(double fromDegrees) {
    return fromDegrees * std::numbers::pi / 180;
}

} // namespace tidepool
