#include "Platform/Graphics/SystemFont.h"

#include <fontconfig/fontconfig.h>

#include <future>

namespace platform {

void prepareFonts() {
    // Waited for at the end of the process. Qt finds the configuration that is already there.
    static const auto reading = std::async(std::launch::async, FcInit);
}

} // namespace platform
