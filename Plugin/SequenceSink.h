#pragma once

#include "Plugin/MidiSink.h"

#include <lv2/atom/atom.h>
#include <lv2/urid/urid.h>

namespace noteloft::plugin {

/// Appends MIDI messages to the atom sequence of an output port. Audio thread; never writes beyond the room
/// that the host announced in the port's atom.
class SequenceSink final : public MidiSink {
public:
    /// Empties `sequence`, which must outlive the sink.
    SequenceSink(LV2_Atom_Sequence& sequence, LV2_URID sequenceType, LV2_URID midiType);

    bool write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) override;

private:
    LV2_Atom_Sequence& m_sequence;
    std::uint32_t m_capacity;
    LV2_URID m_midiType;
};

} // namespace noteloft::plugin
