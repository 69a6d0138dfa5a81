#include "Plugin/NoteSchedule.h"

#include <algorithm>

namespace noteloft::plugin {

bool NoteSchedule::add(const Entry& entry) {
    if (m_count == capacity)
        return false;
    std::size_t place = m_count++;
    for (; place > 0 && m_entries[place - 1].time <= entry.time; --place)
        m_entries[place] = m_entries[place - 1];
    m_entries[place] = entry;
    return true;
}

template <typename Predicate>
void NoteSchedule::dropIf(Predicate matches) {
    const auto begin = m_entries.begin();
    const auto kept = std::remove_if(begin, begin + static_cast<std::ptrdiff_t>(m_count), matches);
    m_count = static_cast<std::size_t>(kept - begin);
}

void NoteSchedule::dropChannel(std::uint8_t channel) {
    dropIf([=](const Entry& entry) { return entry.note.channel == channel; });
}

void NoteSchedule::drop(const Note& note) {
    dropIf([&](const Entry& entry) {
        return entry.note.strike == note.strike && entry.note.pitch == note.pitch;
    });
}

} // namespace noteloft::plugin
