#include "Platform/Gpu/GpuContext.h"

#include "Platform/Core/MainThread.h"

namespace platform {

namespace {

bool isKeptOnMainThread = false; // written before there is a second thread

} // namespace

void GpuContext::setKeptCurrent(bool isKept) {
    isKeptOnMainThread = isKept;
}

bool GpuContext::isKeptCurrent() {
    return isKeptOnMainThread && isMainThread();
}

} // namespace platform
