#pragma once

namespace tidepool {

struct DegreeUtil {
    /// The same angle above -180 and up to 180 degrees.
    static double normalizedDegrees(double degrees);

    static double radians(double fromDegrees);
};

} // namespace tidepool
