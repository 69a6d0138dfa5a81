#pragma once

#include "Platform/Core/CacheLine.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <optional>

namespace platform {

/// A queue of fixed capacity for many producers and one consumer, without locks. A producer that is held up
/// between `claim` and `fill` holds up nobody but the consumer, who sees the queue end before its place. The
/// items are plain values. Neither side reads what the other writes more often than it must: that is most of
/// what a change costs.
template <typename T>
class BoundedQueue {
public:
    /// `capacity` is a power of two, at least 2.
    explicit BoundedQueue(std::size_t capacity)
        : m_capacity(capacity), m_cells(new Cell[capacity]), m_limit(capacity) {}

    /// Takes the next place, which the caller then fills; none if the queue is full. Any thread; allocates
    /// nothing.
    std::optional<std::size_t> claim() {
        std::size_t place = m_pushed.load(std::memory_order_relaxed);
        do {
            if (!hasRoom(place))
                return std::nullopt;
        } while (!m_pushed.compare_exchange_weak(place, place + 1));
        return place;
    }

    /// Puts the item into a place of the caller's.
    void fill(std::size_t place, const T& item) {
        Cell& cell = cellAt(place);
        cell.item = item;
        cell.turn.store(place + 1, std::memory_order_release);
        // The consumer has read that cell in the last turn; getting it back takes longer than filling it.
        constexpr std::size_t ahead = 64;
        __builtin_prefetch(&cellAt(place + ahead), 1);
    }

    /// False if the next item is not there, or not complete yet. The consumer's thread.
    bool pop(T& item) {
        const std::size_t place = popped();
        if (!isComplete(place))
            return false;
        item = cellAt(place).item;
        m_popped.store(place + 1, std::memory_order_release);
        return true;
    }

    /// Where the items end that `pop` would give now: a value that `popped` comes to. The consumer's thread.
    std::size_t completeEnd() const {
        std::size_t end = popped();
        while (isComplete(end))
            ++end;
        return end;
    }

    /// How many places have been taken. Any thread.
    std::size_t pushed() const { return m_pushed.load(); }

    /// How many items have been popped. Any thread.
    std::size_t popped() const { return m_popped.load(std::memory_order_relaxed); }

private:
    struct Cell {
        std::atomic<std::size_t> turn = 0; // any thread; one more than the place that it is filled for
        T item{};                          // whoever has claimed the place, then the consumer
    };

    Cell& cellAt(std::size_t place) const { return m_cells[place & (m_capacity - 1)]; }

    bool isComplete(std::size_t place) const {
        return cellAt(place).turn.load(std::memory_order_acquire) == place + 1;
    }

    // Looks where the consumer is only once all places are used up that were free at the last look.
    bool hasRoom(std::size_t place) {
        if (isBefore(place, m_limit.load(std::memory_order_acquire)))
            return true;
        const std::size_t limit = m_popped.load(std::memory_order_acquire) + m_capacity;
        m_limit.store(limit, std::memory_order_release);
        return isBefore(place, limit);
    }

    static bool isBefore(std::size_t place, std::size_t end) {
        return static_cast<std::ptrdiff_t>(end - place) > 0;
    }

    const std::size_t m_capacity;
    const std::unique_ptr<Cell[]> m_cells;
    alignas(cacheLine) std::atomic<std::size_t> m_pushed = 0; // any thread
    std::atomic<std::size_t> m_limit;                         // any thread; no place from here on is free
    alignas(cacheLine) std::atomic<std::size_t> m_popped = 0; // written by the consumer, read on any thread
};

} // namespace platform
