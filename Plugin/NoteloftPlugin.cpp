#include "Plugin/NoteloftPlugin.h"

#include "Plugin/SequenceSink.h"

#include <lv2/atom/util.h>
#include <lv2/midi/midi.h>

#include <algorithm>
#include <cmath>

namespace noteloft::plugin {

NoteloftPlugin::NoteloftPlugin(const LV2_URID_Map& map)
    : m_sequenceType(map.map(map.handle, LV2_ATOM__Sequence)),
      m_midiType(map.map(map.handle, LV2_MIDI__MidiEvent)) {}

void NoteloftPlugin::connect(std::uint32_t port, void* data) {
    if (port < m_ports.size())
        m_ports[port] = data;
}

NoteSettings NoteloftPlugin::settings() const {
    constexpr float percent = 0.01F;
    // Hosts are free to send values outside the announced ranges.
    return {.transpose = static_cast<int>(std::lround(std::clamp(control(transpose), -24.0F, 24.0F))),
            .velocity = std::clamp(control(velocity) * percent, 0.0F, 2.0F),
            .chance = std::clamp(control(chance) * percent, 0.0F, 1.0F),
            .hold = control(hold) > 0,
            .enabled = control(enabled) > 0};
}

void NoteloftPlugin::run(std::uint32_t frameCount) {
    SequenceSink sink(*static_cast<LV2_Atom_Sequence*>(m_ports[midiOut]), m_sequenceType, m_midiType);
    if (frameCount > 0)
        m_processor.beginBlock(settings(), sink);
    const auto* input = static_cast<const LV2_Atom_Sequence*>(m_ports[midiIn]);
    LV2_ATOM_SEQUENCE_FOREACH(input, event)
    if (event->body.type == m_midiType)
        m_processor.process(static_cast<std::uint32_t>(event->time.frames),
                            reinterpret_cast<const std::uint8_t*>(event + 1), event->body.size, sink);
}

} // namespace noteloft::plugin
