#pragma once

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

    // The numbers are those of noteloft.ttl.
    enum Port { midiIn, midiOut, transpose, velocity, chance, hold, enabled, portCount };

    explicit NoteloftPlugin(const LV2_URID_Map& map);

    void connect(std::uint32_t port, void* data);

    void activate() { m_processor.restart(); }

    void run(std::uint32_t frameCount);

private:
    float control(Port port) const { return *static_cast<const float*>(m_ports[port]); }

    NoteSettings settings() const;

    NoteProcessor m_processor;
    std::array<void*, portCount> m_ports{};
    LV2_URID m_sequenceType;
    LV2_URID m_midiType;
};

} // namespace noteloft::plugin
