#include "Platform/AudioUnits/DisplayQueue.h"

#include "Platform/AudioUnits/DisplayTarget.h"
#include "Platform/AudioUnits/RealtimeScope.h"
#include "Platform/Core/MainThread.h"

#include <utility>

namespace platform {

DisplayQueue& DisplayQueue::shared() {
    // Never destroyed: a thread may send until the process ends.
    static DisplayQueue& queue = *new DisplayQueue(4096);
    return queue;
}

DisplayQueue::DisplayQueue(std::size_t capacity) : m_updates(capacity) {}

DisplayQueue::~DisplayQueue() {
    for (auto* target = m_listed.load(); target != nullptr;) {
        const auto self = std::exchange(target->m_listedSelf, nullptr);
        target = target->m_nextListed;
    }
}

bool DisplayQueue::isEmpty() const {
    return m_updates.pushed() == m_updates.popped() && m_listed.load() == nullptr;
}

void DisplayQueue::wake() {
    if (!RealtimeScope::isActive() && !m_isWoken.exchange(true))
        m_wakeUp.signal();
}

void DisplayQueue::list(DisplayTarget& target) {
    target.m_listedSelf = target.shared_from_this();
    target.m_nextListed = m_listed.load(std::memory_order_relaxed);
    while (!m_listed.compare_exchange_weak(target.m_nextListed, &target, std::memory_order_release,
                                           std::memory_order_relaxed)) {
    }
}

void DisplayQueue::drain() {
    requireMainThread();
    if (m_isWoken.exchange(false))
        m_wakeUp.clear();
    const std::size_t end = m_updates.pushed();
    // A slot that turns the loop may drain meanwhile.
    while (static_cast<std::ptrdiff_t>(end - m_updates.popped()) > 0) {
        Update update;
        if (!m_updates.pop(update)) {
            wake(); // Somebody is held up between taking a place and filling it.
            return;
        }
        update.target->showIfNewer(update.number, update.source, update.value);
    }
    showListed();
}

void DisplayQueue::showListed() {
    DisplayTarget* oldest = nullptr;
    for (auto* target = m_listed.exchange(nullptr); target != nullptr;)
        target = std::exchange(target->m_nextListed, std::exchange(oldest, target));
    while (oldest != nullptr) {
        const auto target = std::exchange(oldest->m_listedSelf, nullptr);
        oldest = target->m_nextListed;
        target->showKept();
    }
}

} // namespace platform
