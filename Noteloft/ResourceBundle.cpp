#include "Noteloft/ResourceBundle.h"

namespace noteloft {

const platform::Bundle& resourceBundle() {
    static const char resourceBundleClass = 0;
    static const auto bundle = platform::Bundle::containing(&resourceBundleClass);
    return bundle;
}

} // namespace noteloft
