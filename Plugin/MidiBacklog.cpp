#include "Plugin/MidiBacklog.h"

#include "Plugin/MidiStatus.h"

#include <cstring>

namespace noteloft::plugin {

std::uint32_t MidiBacklog::firstSize() const {
    std::uint32_t size = 0;
    std::memcpy(&size, &m_bytes[m_begin], sizeof size);
    return size;
}

bool MidiBacklog::add(const std::uint8_t* bytes, std::uint32_t size) {
    const std::size_t needed = sizeof size + size;
    if (m_end + needed > capacity) {
        std::memmove(m_bytes.data(), &m_bytes[m_begin], m_end - m_begin);
        m_end -= m_begin;
        m_begin = 0;
    }
    if (m_end + needed > capacity)
        return false;
    std::memcpy(&m_bytes[m_end], &size, sizeof size);
    std::memcpy(&m_bytes[m_end + sizeof size], bytes, size);
    m_end += needed;
    return true;
}

void MidiBacklog::send(MidiSink& sink) {
    constexpr std::uint32_t shortMessage = 3;
    constexpr int patience = 4;
    bool isFirst = true;
    while (!isEmpty()) {
        const std::uint32_t size = firstSize();
        if (!sink.write(0, &m_bytes[m_begin + sizeof size], size)) {
            m_failures += isFirst ? 1 : 0;
            if (size <= shortMessage || m_failures < patience)
                return;
        }
        isFirst = false;
        m_failures = 0;
        m_begin += sizeof size + size;
    }
    m_begin = m_end = 0;
}

bool OrderedSink::write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) {
    if (m_backlog.isEmpty() && m_sink.write(frame, bytes, size))
        return true;
    return !midi::isNoteOn(bytes, size) && m_backlog.add(bytes, size);
}

} // namespace noteloft::plugin
