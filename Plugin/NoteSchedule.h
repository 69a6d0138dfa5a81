#pragma once

#include "Plugin/Note.h"

#include <array>
#include <cstddef>

namespace noteloft::plugin {

/// Beginnings and ends of notes that lie ahead, in the order of their time and, at one time, of their
/// arrival.
class NoteSchedule {
public:
    static constexpr std::size_t capacity = 2048;

    enum class Kind : std::uint8_t { begin, end };

    struct Entry {
        std::uint64_t time; ///< In frames since the start.
        Note note;
        Kind kind;
    };

    bool isEmpty() const { return m_count == 0; }

    /// The earliest; there must be one.
    const Entry& first() const { return m_entries[m_count - 1]; }

    Entry takeFirst() { return m_entries[--m_count]; }

    /// False, and keeps nothing, when full.
    bool add(const Entry& entry);

    void clear() { m_count = 0; }

    void dropChannel(std::uint8_t channel);

    /// Drops what is left of this note.
    void drop(const Note& note);

private:
    template <typename Predicate>
    void dropIf(Predicate matches);

    std::array<Entry, capacity> m_entries; // the earliest last
    std::size_t m_count = 0;
};

} // namespace noteloft::plugin
