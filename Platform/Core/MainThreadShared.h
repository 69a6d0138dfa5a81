#pragma once

#include "Platform/Core/MainQueue.h"
#include "Platform/Core/MainThread.h"

#include <QCoreApplication>

#include <memory>
#include <utility>

namespace platform {

/// Deletes on the main thread: at once there, else in a later turn of its loop, or with the application if
/// there is none any more.
struct DeleteOnMainThread {
    template <typename T>
    void operator()(T* object) const {
        if (isMainThread() || QCoreApplication::instance() == nullptr)
            delete object;
        else
            MainQueue::async([owner = std::shared_ptr<T>(object)] {});
    }
};

/// A shared object that dies on the main thread, whichever thread lets go of it last. For what callbacks of
/// an audio thread hold for as long as they run.
template <typename T, typename... Arguments>
std::shared_ptr<T> makeMainThreadShared(Arguments&&... arguments) {
    return std::shared_ptr<T>(new T(std::forward<Arguments>(arguments)...), DeleteOnMainThread());
}

} // namespace platform
