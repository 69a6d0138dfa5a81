#include "Platform/Core/MainThread.h"

#include "Platform/Core/FatalError.h"

#include <QCoreApplication>
#include <QThread>

namespace platform {

bool isMainThread() {
    const auto* application = QCoreApplication::instance();
    return application != nullptr && QThread::currentThread() == application->thread();
}

void requireMainThread() {
    if (!isMainThread())
        fatalError("This must run on the main thread");
}

} // namespace platform
