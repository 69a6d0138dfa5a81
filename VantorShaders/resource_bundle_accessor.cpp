#include "VantorShaders/resource_bundle_accessor.h"

namespace vantor {

const platform::Bundle& resourceBundle() {
    static const char bundleFinder = 0;
    static const auto bundle =
        platform::Bundle::module(QStringLiteral("VantorShaders_VantorShaders"), &bundleFinder);
    return bundle;
}

} // namespace vantor
