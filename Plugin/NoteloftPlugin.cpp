#include "Plugin/NoteloftPlugin.h"

#include "Plugin/SequenceSink.h"

#include <lv2/atom/util.h>
#include <lv2/midi/midi.h>

#include <algorithm>
#include <cstring>

namespace noteloft::plugin {

NoteloftPlugin::NoteloftPlugin(double sampleRate, const LV2_URID_Map& map, std::uint32_t seed)
    : m_processor(sampleRate),
      m_sequenceType(map.map(map.handle, LV2_ATOM__Sequence)),
      m_midiType(map.map(map.handle, LV2_MIDI__MidiEvent)),
      m_intType(map.map(map.handle, LV2_ATOM__Int)),
      m_seedKey(map.map(map.handle, "http://quillfen.example/plugins/noteloft#seed")) {
    setSeed(seed);
}

void NoteloftPlugin::setSeed(std::uint32_t seed) {
    m_seed = seed;
    m_processor.setSeed(seed);
}

LV2_State_Status NoteloftPlugin::save(LV2_State_Store_Function store, LV2_State_Handle state) const {
    return store(state, m_seedKey, &m_seed, sizeof m_seed, m_intType,
                 LV2_STATE_IS_POD | LV2_STATE_IS_PORTABLE);
}

LV2_State_Status NoteloftPlugin::restore(LV2_State_Retrieve_Function retrieve, LV2_State_Handle state) {
    std::size_t size = 0;
    std::uint32_t type = 0;
    std::uint32_t flags = 0;
    const void* const value = retrieve(state, m_seedKey, &size, &type, &flags);
    if (value == nullptr)
        return LV2_STATE_SUCCESS; // a preset, or an older session
    if (type != m_intType || size != sizeof m_seed)
        return LV2_STATE_ERR_BAD_TYPE;
    std::uint32_t seed = 0;
    std::memcpy(&seed, value, sizeof seed);
    setSeed(seed);
    return LV2_STATE_SUCCESS;
}

void NoteloftPlugin::connect(std::uint32_t port, void* data) {
    if (port < m_ports.size())
        m_ports[port] = data;
}

float NoteloftPlugin::control(Ports::Index port) const {
    return controlPort(port).nearest(*static_cast<const float*>(m_ports[port]));
}

NoteSettings NoteloftPlugin::settings() const {
    constexpr float percent = 0.01F;
    constexpr double millisecond = 0.001;
    const auto whole = [this](Ports::Index port) { return static_cast<int>(control(port)); };
    return {.harmony = {.transpose = whole(Ports::transpose),
                        .root = whole(Ports::root),
                        .scale = static_cast<Scale>(whole(Ports::scale)),
                        .chord = static_cast<Chord>(whole(Ports::chord)),
                        .inversion = whole(Ports::inversion)},
            .strum = static_cast<double>(control(Ports::strum)) * millisecond,
            .direction = static_cast<StrumDirection>(whole(Ports::direction)),
            .velocity = control(Ports::velocity) * percent,
            .dynamics = control(Ports::dynamics) * percent,
            .timing = static_cast<double>(control(Ports::timing)) * millisecond,
            .chance = control(Ports::chance) * percent,
            .hold = control(Ports::hold) > 0,
            .enabled = control(Ports::enabled) > 0};
}

void NoteloftPlugin::run(std::uint32_t frameCount) {
    SequenceSink sink(*static_cast<LV2_Atom_Sequence*>(m_ports[Ports::midiOut]), m_sequenceType, m_midiType);
    if (frameCount > 0)
        m_processor.beginBlock(settings(), sink);
    const auto* input = static_cast<const LV2_Atom_Sequence*>(m_ports[Ports::midiIn]);
    // Hosts are free to send frames that lie outside of the block, or go backwards.
    const std::int64_t last = std::max<std::int64_t>(frameCount, 1) - 1;
    std::int64_t frame = 0;
    LV2_ATOM_SEQUENCE_FOREACH(input, event) {
        if (event->body.type != m_midiType)
            continue;
        frame = std::clamp(event->time.frames, frame, last);
        m_processor.process(static_cast<std::uint32_t>(frame),
                            reinterpret_cast<const std::uint8_t*>(event + 1), event->body.size, sink);
    }
    if (frameCount > 0)
        m_processor.endBlock(frameCount, sink);
}

} // namespace noteloft::plugin
