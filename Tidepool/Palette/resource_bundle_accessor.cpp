#include "Tidepool/Palette/resource_bundle_accessor.h"

namespace tidepool {

const platform::Bundle& resourceBundle() {
    static const char bundleFinder = 0;
    static const auto bundle = platform::Bundle::module(QStringLiteral("Tidepool_Tidepool"), &bundleFinder);
    return bundle;
}

} // namespace tidepool
