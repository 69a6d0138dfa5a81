#pragma once

#include <cstdint>

namespace noteloft::plugin {

/// Takes the MIDI messages of one block. Audio thread.
class MidiSink {
public:
    virtual ~MidiSink() = default;

    /// Adds a message at `frame` of the block; frames never decrease within a block. Returns false, and keeps
    /// nothing of the message, when there is no room for it.
    virtual bool write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) = 0;
};

} // namespace noteloft::plugin
