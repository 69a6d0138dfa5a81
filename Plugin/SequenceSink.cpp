#include "Plugin/SequenceSink.h"

#include <lv2/atom/util.h>

#include <cstring>

namespace noteloft::plugin {

SequenceSink::SequenceSink(LV2_Atom_Sequence& sequence, LV2_URID sequenceType, LV2_URID midiType)
    : m_sequence(sequence), m_capacity(sequence.atom.size), m_midiType(midiType) {
    if (m_capacity < sizeof(LV2_Atom_Sequence_Body)) {
        m_capacity = 0;
        return;
    }
    lv2_atom_sequence_clear(&m_sequence);
    m_sequence.atom.type = sequenceType;
    m_sequence.body.unit = 0;
    m_sequence.body.pad = 0;
}

bool SequenceSink::write(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size) {
    const std::uint64_t needed = (sizeof(LV2_Atom_Event) + std::uint64_t{size} + 7) & ~std::uint64_t{7};
    if (m_capacity == 0 || m_sequence.atom.size + needed > m_capacity)
        return false;
    auto* event = lv2_atom_sequence_end(&m_sequence.body, m_sequence.atom.size);
    event->time.frames = frame;
    event->body = {size, m_midiType};
    std::memcpy(event + 1, bytes, size);
    m_sequence.atom.size += static_cast<std::uint32_t>(needed);
    return true;
}

} // namespace noteloft::plugin
