#include "Platform/Display/DisplayQueue.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Display/DisplayTarget.h"
#include "Platform/Display/RealtimeScope.h"

#include <utility>

namespace platform {

DisplayQueue& DisplayQueue::shared() {
    // Never destroyed: a thread may send until the process ends.
    static DisplayQueue& queue = *new DisplayQueue(4096);
    return queue;
}

DisplayQueue::DisplayQueue(std::size_t capacity) : m_updates(capacity) {}

DisplayQueue::~DisplayQueue() {
    for (Update update; m_updates.pop(update);)
        noteHeld(*update.target);
    for (auto* target = m_listed.load(); target != nullptr;) {
        const auto self = std::exchange(target->m_listedSelf, nullptr);
        target = target->m_nextListed;
    }
    letGo();
}

bool DisplayQueue::isEmpty() const {
    return m_updates.pushed() == m_updates.popped() && m_listed.load() == nullptr;
}

void DisplayQueue::wake() {
    if (!RealtimeScope::isActive() && !m_isWoken.exchange(true))
        m_wakeUp.signal();
}

void DisplayQueue::list(DisplayTarget& target) {
    target.m_listedSelf = target.self();
    target.m_nextListed = m_listed.load(std::memory_order_relaxed);
    while (!m_listed.compare_exchange_weak(target.m_nextListed, &target, std::memory_order_release,
                                           std::memory_order_relaxed)) {
    }
}

void DisplayQueue::drain() {
    drain(m_isWoken.load(std::memory_order_relaxed));
}

void DisplayQueue::answer() {
    drain(true);
}

void DisplayQueue::drain(bool isWoken) {
    requireMainThread();
    if (isWoken) {
        // The flag last: whoever sets it from then on signals, and that signal stays.
        m_wakeUp.clear();
        m_isWoken.exchange(false);
    }
    const bool hasListed = m_listed.load(std::memory_order_acquire) != nullptr;
    // The senders' count is theirs to write; the places themselves tell as much unless more depends on it.
    const std::size_t end = isWoken || hasListed ? m_updates.pushed() : m_updates.completeEnd();
    const bool isComplete = showUntil(end);
    if (!isComplete)
        wake(); // Somebody is held up between taking a place and filling it.
    else if (hasListed)
        showListed();
    takeHolds(true);
}

bool DisplayQueue::showUntil(std::size_t end) {
    // A slot that turns the loop may drain meanwhile.
    while (static_cast<std::ptrdiff_t>(end - m_updates.popped()) > 0) {
        Update update;
        if (!m_updates.pop(update))
            return false;
        noteHeld(*update.target);
        ++m_showing;
        update.target->showIfNewer(update.number, update.source, update.value);
        --m_showing;
    }
    return true;
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

void DisplayQueue::letGo() {
    forgetTaken();
    takeHolds(false);
}

// Without a hold it is about to be let go of, and the value before this one still kept it.
void DisplayQueue::noteHeld(DisplayTarget& target) {
    if (target.m_isNoted || target.m_hold.load() == DisplayTarget::Hold::none)
        return;
    target.m_isNoted = true;
    target.m_nextHeld = std::exchange(m_held, &target);
}

void DisplayQueue::takeHolds(bool onlyOrphans) {
    if (m_held == nullptr || m_showing > 0 || !m_taken.empty())
        return;
    for (DisplayTarget** next = &m_held; *next != nullptr;) {
        DisplayTarget& target = **next;
        if (target.m_hold.load(std::memory_order_acquire) != DisplayTarget::Hold::complete ||
            (onlyOrphans && target.m_self.use_count() > 1)) {
            next = &target.m_nextHeld;
            continue;
        }
        *next = target.m_nextHeld;
        target.m_isNoted = false;
        m_taken.push_back(std::move(target.m_self));
        target.m_hold.store(DisplayTarget::Hold::none);
    }
    if (m_taken.empty())
        return;
    m_takenEnd = m_updates.pushed();
    forgetTaken();
}

void DisplayQueue::forgetTaken() {
    if (m_showing == 0 && static_cast<std::ptrdiff_t>(m_takenEnd - m_updates.popped()) <= 0)
        std::exchange(m_taken, {}); // Nothing of this is used while they die.
}

} // namespace platform
