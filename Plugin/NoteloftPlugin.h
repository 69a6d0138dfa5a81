#pragma once

#include "Plugin/ControlPorts.h"
#include "Plugin/NoteProcessor.h"

#include <lv2/atom/atom.h>
#include <lv2/core/lv2.h>
#include <lv2/urid/urid.h>

#include <array>

namespace noteloft::plugin {

/// The plug-in as a host sees it: its ports and one block of work. `run` is for the audio thread.
class NoteloftPlugin {
public:
    static constexpr const char* uri = "http://quillfen.example/plugins/noteloft";

    /// `sampleRate` is in frames a second.
    NoteloftPlugin(double sampleRate, const LV2_URID_Map& map);

    /// All ports are connected before the first `run`.
    void connect(std::uint32_t port, void* data);

    void activate() { m_processor.restart(); }

    void run(std::uint32_t frameCount);

private:
    float control(Ports::Index port) const;
    NoteSettings settings() const;

    NoteProcessor m_processor;
    std::array<void*, Ports::count> m_ports{};
    LV2_URID m_sequenceType;
    LV2_URID m_midiType;
};

} // namespace noteloft::plugin
