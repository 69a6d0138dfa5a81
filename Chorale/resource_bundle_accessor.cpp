#include "Chorale/resource_bundle_accessor.h"

namespace chorale {

const platform::Bundle& resourceBundle() {
    static const char bundleFinder = 0;
    static const auto bundle = platform::Bundle::module(QStringLiteral("Chorale_Chorale"), &bundleFinder);
    return bundle;
}

} // namespace chorale
