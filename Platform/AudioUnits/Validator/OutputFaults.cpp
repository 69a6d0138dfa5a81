#include "Platform/AudioUnits/Validator/OutputFaults.h"

#include <lv2/atom/util.h>

#include <algorithm>

namespace platform {

namespace {

constexpr std::uint8_t systemExclusive = 0xF0;
constexpr std::uint8_t systemExclusiveEnd = 0xF7;

// The length of a message by its status, or 0 for a status that MIDI does not define.
std::size_t messageLength(std::uint8_t status) {
    if (status >= 0xF8)
        return status == 0xF9 || status == 0xFD ? 0 : 1;
    constexpr std::size_t systemLengths[] = {0, 2, 3, 2, 0, 0, 1, 0};
    if (status > systemExclusive)
        return systemLengths[status - systemExclusive];
    const int kind = status & 0xF0;
    return kind == 0xC0 || kind == 0xD0 ? 2 : 3;
}

bool isData(std::span<const std::uint8_t> bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte < 0x80; });
}

std::string timeFault(const LV2_Atom_Event& event, std::int64_t previous, std::uint32_t frameCount) {
    if (event.time.frames < 0 || event.time.frames >= frameCount)
        return "an event at frame " + std::to_string(event.time.frames) + " of a block of " +
               std::to_string(frameCount);
    if (event.time.frames < previous)
        return "an event at frame " + std::to_string(event.time.frames) + " after one at frame " +
               std::to_string(previous);
    return {};
}

} // namespace

std::string midiMessageFault(std::span<const std::uint8_t> bytes) {
    if (bytes.empty())
        return "an empty MIDI message";
    if (bytes[0] < 0x80)
        return "a MIDI message without a status";
    if (bytes[0] == systemExclusive) {
        const bool isComplete = bytes.size() >= 2 && bytes.back() == systemExclusiveEnd;
        return isComplete && isData(bytes.subspan(1, bytes.size() - 2)) ? "" : "a broken exclusive message";
    }
    const std::size_t length = messageLength(bytes[0]);
    if (length == 0)
        return "an undefined MIDI status " + std::to_string(bytes[0]);
    if (bytes.size() != length)
        return "a MIDI message of " + std::to_string(bytes.size()) + " bytes instead of " +
               std::to_string(length);
    return isData(bytes.subspan(1)) ? "" : "a MIDI data byte above 127";
}

std::string sequenceFault(const LV2_Atom_Sequence& sequence, std::uint32_t capacity, std::uint32_t frameCount,
                          const SequenceTypes& types, int& midiCount) {
    if (sequence.atom.type != types.sequence)
        return {}; // A plug-in that has nothing to say may leave the port as it was.
    if (sequence.atom.size > capacity || sequence.atom.size < sizeof(LV2_Atom_Sequence_Body))
        return "a sequence of " + std::to_string(sequence.atom.size) + " bytes";
    std::uint32_t offset = sizeof(LV2_Atom_Sequence_Body);
    std::int64_t previous = 0;
    while (offset < sequence.atom.size) {
        const std::uint64_t left = sequence.atom.size - offset;
        const auto* event = reinterpret_cast<const LV2_Atom_Event*>(
            reinterpret_cast<const std::uint8_t*>(&sequence.body) + offset);
        if (left < sizeof(LV2_Atom_Event) || left - sizeof(LV2_Atom_Event) < event->body.size)
            return "an event that reaches beyond its sequence";
        if (std::string fault = timeFault(*event, previous, frameCount); !fault.empty())
            return fault;
        previous = event->time.frames;
        if (event->body.type == types.midiEvent) {
            ++midiCount;
            const auto* bytes = reinterpret_cast<const std::uint8_t*>(event + 1);
            if (std::string fault = midiMessageFault({bytes, event->body.size}); !fault.empty())
                return fault;
        }
        offset += static_cast<std::uint32_t>(sizeof(LV2_Atom_Event)) + lv2_atom_pad_size(event->body.size);
    }
    return {};
}

} // namespace platform
