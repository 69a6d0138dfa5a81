#pragma once

#include "Plugin/MidiSink.h"

#include <array>
#include <cstddef>

namespace noteloft::plugin {

/// Messages that found no room in the output, in their order. Audio thread.
class MidiBacklog {
public:
    bool isEmpty() const { return m_begin == m_end; }

    /// False, and keeps nothing, when full.
    bool add(const std::uint8_t* bytes, std::uint32_t size);

    /// Sends what finds room at the start of a block. A long message that does not fit into several empty
    /// blocks never will, and is dropped, so that the others get through.
    void send(MidiSink& sink);

private:
    static constexpr std::size_t capacity = 0x10000;

    std::uint32_t firstSize() const;

    std::array<std::uint8_t, capacity> m_bytes; // each message after its size
    std::size_t m_begin = 0;
    std::size_t m_end = 0;
    int m_failures = 0; // of the first one, in blocks
};

/// A sink in which nothing overtakes what waits. Only note-ons are dropped where there is no room: a late one
/// would be heard.
class OrderedSink final : public MidiSink {
public:
    /// Both outlive it.
    OrderedSink(MidiBacklog& backlog, MidiSink& sink) : m_backlog(backlog), m_sink(sink) {}

    bool write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) override;

private:
    MidiBacklog& m_backlog;
    MidiSink& m_sink;
};

} // namespace noteloft::plugin
