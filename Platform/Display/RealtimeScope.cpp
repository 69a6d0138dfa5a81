#include "Platform/Display/RealtimeScope.h"

namespace platform {

namespace {

// In the static block: the first use on a thread must not allocate, even in a library that was loaded late.
[[gnu::tls_model("initial-exec")]] thread_local int depth = 0;

} // namespace

RealtimeScope::RealtimeScope() {
    ++depth;
}

RealtimeScope::~RealtimeScope() {
    --depth;
}

bool RealtimeScope::isActive() {
    return depth > 0;
}

} // namespace platform
