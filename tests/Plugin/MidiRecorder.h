#pragma once

#include "Plugin/MidiSink.h"

#include <cstddef>
#include <ostream>
#include <utility>
#include <vector>

/// One MIDI message and where in its block it lies.
struct RecordedMessage {
    std::uint32_t frame = 0;
    std::vector<std::uint8_t> bytes;

    bool operator==(const RecordedMessage&) const = default;

    friend std::ostream& operator<<(std::ostream& stream, const RecordedMessage& message) {
        stream << '@' << message.frame;
        for (const int byte : message.bytes)
            stream << ' ' << std::hex << byte << std::dec;
        return stream;
    }
};

/// Keeps what is written, up to `room` messages.
class MidiRecorder final : public noteloft::plugin::MidiSink {
public:
    bool write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) override {
        if (messages.size() >= room || size > longest)
            return false;
        messages.push_back({frame, {bytes, bytes + size}});
        return true;
    }

    std::vector<RecordedMessage> take() { return std::exchange(messages, {}); }

    std::vector<RecordedMessage> messages;
    std::size_t room = 1000;
    std::size_t longest = 100000; ///< Bytes.
};
