#pragma once

#include <lv2/atom/atom.h>
#include <lv2/urid/urid.h>

#include <cstdint>
#include <span>
#include <string>

namespace platform {

/// What is wrong with one MIDI message, or empty. A message is complete: no running status, and a system
/// exclusive message has both its ends.
std::string midiMessageFault(std::span<const std::uint8_t> bytes);

/// The numbers of the types that a sequence is read with.
struct SequenceTypes {
    LV2_URID sequence;
    LV2_URID midiEvent;
};

/// What is wrong with a sequence that a plug-in wrote for a block of `frameCount` frames, or empty: all of it
/// lies within `capacity` bytes of atom body, its events within the block, in the order of their times, and
/// its MIDI messages are well formed. `midiCount` is raised by the number of those.
std::string sequenceFault(const LV2_Atom_Sequence& sequence, std::uint32_t capacity, std::uint32_t frameCount,
                          const SequenceTypes& types, int& midiCount);

} // namespace platform
