#include "Platform/Display/DisplayTarget.h"

#include "Platform/Core/FatalError.h"
#include "Platform/Display/DisplayQueue.h"

#include <algorithm>
#include <bit>

namespace platform {

DisplayTarget::DisplayTarget(DisplayQueue& queue) : m_queue(queue) {
    m_queue.m_targets.fetch_add(1, std::memory_order_relaxed);
}

DisplayTarget::~DisplayTarget() {
    m_queue.m_targets.fetch_sub(1, std::memory_order_relaxed);
}

void DisplayTarget::send(std::size_t source, float value) {
    const Number kept = m_queue.m_kept.load(std::memory_order_relaxed);
    if (const auto place = m_queue.m_updates.claim()) {
        if (m_hold.load() == Hold::none)
            hold();
        m_queue.m_updates.fill(
            *place, {this, DisplayQueue::number(*place, kept), value, static_cast<std::uint32_t>(source)});
    } else {
        keep(m_queue.newNumber(), source, value);
    }
    m_queue.wake();
}

std::shared_ptr<DisplayTarget> DisplayTarget::self() {
    auto self = weak_from_this().lock();
    if (!self)
        fatalError("A parameter must be owned by a shared pointer");
    return self;
}

// Meanwhile this has another owner: whoever sends.
void DisplayTarget::hold() {
    if (auto none = Hold::none; m_hold.compare_exchange_strong(none, Hold::beginning)) {
        m_self = self();
        m_hold.store(Hold::complete, std::memory_order_release);
    }
}

DisplayTarget::Word DisplayTarget::pack(Number number, float value) {
    return number << 32 | std::bit_cast<std::uint32_t>(value);
}

// The latest number with the half that the word has.
DisplayTarget::Number DisplayTarget::numberOf(Word word) const {
    const Number latest = m_queue.latestNumber();
    return latest - static_cast<std::uint32_t>(latest - (word >> 32));
}

float DisplayTarget::valueOf(Word word) {
    return std::bit_cast<float>(static_cast<std::uint32_t>(word));
}

void DisplayTarget::keep(Number number, std::size_t source, float value) {
    const Word word = pack(number, value);
    Word kept = m_kept[source].load();
    const auto isOlder = [&] {
        return kept == 0 || static_cast<std::int32_t>((kept >> 32) - (word >> 32)) < 0;
    };
    while (isOlder() && !m_kept[source].compare_exchange_weak(kept, word)) {
    }
    if (!m_isListed.exchange(true))
        m_queue.list(*this);
}

void DisplayTarget::showKept() {
    // First: what is kept from here on lists this again.
    m_isListed.exchange(false);
    std::array<std::pair<Number, std::size_t>, sourceCount> order{};
    std::array<Word, sourceCount> words{};
    for (std::size_t source = 0; source < sourceCount; ++source) {
        words[source] = m_kept[source].exchange(0);
        order[source] = {words[source] == 0 ? 0 : numberOf(words[source]), source};
    }
    if (order[1] < order[0])
        std::swap(order[0], order[1]);
    for (const auto& [number, source] : order)
        if (words[source] != 0)
            showIfNewer(number, source, valueOf(words[source]));
}

void DisplayTarget::showIfNewer(Number number, std::size_t source, float value) {
    if (number <= m_shown[source])
        return;
    for (std::size_t outdated = 0; outdated <= source; ++outdated)
        m_shown[outdated] = std::max(m_shown[outdated], number);
    show(source, value);
}

} // namespace platform
