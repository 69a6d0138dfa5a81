#include "Platform/Core/MainQueue.h"

#include <QCoreApplication>
#include <QMetaObject>

#include <utility>

namespace platform {

void MainQueue::async(std::function<void()> work) {
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::move(work), Qt::QueuedConnection);
}

} // namespace platform
