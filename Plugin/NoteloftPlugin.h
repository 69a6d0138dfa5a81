#pragma once

#include "Plugin/ControlPorts.h"
#include "Plugin/NoteProcessor.h"

#include <lv2/atom/atom.h>
#include <lv2/core/lv2.h>
#include <lv2/state/state.h>
#include <lv2/urid/urid.h>

#include <array>

namespace noteloft::plugin {

/// The plug-in as a host sees it: its ports and one block of work. `run` is for the audio thread.
class NoteloftPlugin {
public:
    static constexpr const char* uri = "http://quillfen.example/plugins/noteloft";

    /// `sampleRate` is in frames a second. `seed` tells the hands apart that humanise the notes.
    NoteloftPlugin(double sampleRate, const LV2_URID_Map& map, std::uint32_t seed);

    /// Beside the controls, which hosts keep, a session holds the seed. Not while `run` is running.
    LV2_State_Status save(LV2_State_Store_Function store, LV2_State_Handle state) const;
    LV2_State_Status restore(LV2_State_Retrieve_Function retrieve, LV2_State_Handle state);

    /// All ports are connected before the first `run`.
    void connect(std::uint32_t port, void* data);

    void activate() { m_processor.restart(); }

    void run(std::uint32_t frameCount);

private:
    float control(Ports::Index port) const;
    NoteSettings settings() const;

    void setSeed(std::uint32_t seed);

    NoteProcessor m_processor;
    std::uint32_t m_seed = 0;
    std::array<void*, Ports::count> m_ports{};
    LV2_URID m_sequenceType;
    LV2_URID m_midiType;
    LV2_URID m_intType;
    LV2_URID m_seedKey;
};

} // namespace noteloft::plugin
