#pragma once

#include <atomic>
#include <cstddef>
#include <memory>
#include <utility>

namespace platform {

/// A queue of fixed capacity for many producers and one consumer, without locks. A producer that is held up
/// inside `push` holds up nobody but the consumer, who sees the queue end before its place. After D. Vyukov's
/// bounded queue: each cell counts the turns that it has been through.
template <typename T>
class BoundedQueue {
public:
    /// `capacity` is a power of two, at least 2.
    explicit BoundedQueue(std::size_t capacity) : m_mask(capacity - 1), m_cells(new Cell[capacity]) {
        for (std::size_t i = 0; i < capacity; ++i)
            m_cells[i].turn.store(i, std::memory_order_relaxed);
    }

    /// False, with `item` as it was, if the queue is full. Any thread; allocates nothing.
    bool push(T& item) {
        std::size_t place = m_pushed.load(std::memory_order_relaxed);
        for (;;) {
            Cell& cell = m_cells[place & m_mask];
            const std::size_t turn = cell.turn.load(std::memory_order_acquire);
            if (turn == place) {
                if (!m_pushed.compare_exchange_weak(place, place + 1, std::memory_order_relaxed))
                    continue;
                cell.item = std::move(item);
                cell.turn.store(place + 1, std::memory_order_release);
                return true;
            }
            if (static_cast<std::ptrdiff_t>(turn - place) < 0)
                return false;
            place = m_pushed.load(std::memory_order_relaxed);
        }
    }

    /// False if the next item is not there, or not complete yet. The consumer's thread.
    bool pop(T& item) {
        const std::size_t place = m_popped.load(std::memory_order_relaxed);
        Cell& cell = m_cells[place & m_mask];
        if (cell.turn.load(std::memory_order_acquire) != place + 1)
            return false;
        item = std::exchange(cell.item, T());
        m_popped.store(place + 1, std::memory_order_relaxed);
        cell.turn.store(place + m_mask + 1, std::memory_order_release);
        return true;
    }

    /// How many items have been begun. Any thread.
    std::size_t pushed() const { return m_pushed.load(std::memory_order_acquire); }

    /// How many items have been taken. Any thread.
    std::size_t popped() const { return m_popped.load(std::memory_order_relaxed); }

private:
    static constexpr std::size_t cacheLine = 64;

    struct alignas(cacheLine) Cell {
        std::atomic<std::size_t> turn; // any thread
        T item{};                      // whoever the turn belongs to
    };

    const std::size_t m_mask;
    const std::unique_ptr<Cell[]> m_cells;
    alignas(cacheLine) std::atomic<std::size_t> m_pushed = 0; // any thread
    alignas(cacheLine) std::atomic<std::size_t> m_popped = 0; // written by the consumer, read on any thread
};

} // namespace platform
