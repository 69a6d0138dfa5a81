#include "Platform/Core/FatalError.h"

#include <cstdio>
#include <cstdlib>

namespace platform {

void fatalError(std::string_view message) {
    std::fwrite(message.data(), 1, message.size(), stderr);
    std::fputc('\n', stderr);
    std::abort();
}

} // namespace platform
