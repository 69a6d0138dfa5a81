#include "Platform/AudioUnits/Validator/PluginInstance.h"

#include <lv2/atom/atom.h>
#include <lv2/midi/midi.h>

namespace platform {

PluginInstance::PluginInstance(const LilvPlugin& plugin, const std::vector<PluginPort>& ports, UridMap& urids,
                               const HostFeatures& features, double sampleRate)
    : m_plugin(plugin),
      m_urids(urids),
      m_features(features),
      m_types{urids.id(LV2_ATOM__Sequence), urids.id(LV2_MIDI__MidiEvent)},
      m_chunkType(urids.id(LV2_ATOM__Chunk)),
      m_buffers(ports.begin(), ports.end()),
      m_instance(lilv_plugin_instantiate(&plugin, sampleRate, features.list())) {
    if (!m_instance)
        return;
    for (PortBuffer& buffer : m_buffers)
        lilv_instance_connect_port(m_instance.get(), buffer.port().index, buffer.data());
}

void PluginInstance::run(std::uint32_t frameCount, std::span<const TimedMidi> midi, RunFindings& findings) {
    std::vector<float> controls;
    for (PortBuffer& buffer : m_buffers) {
        buffer.prepare(m_types, m_chunkType);
        if (buffer.port().isInput && buffer.port().takesMidi)
            for (const TimedMidi& message : midi) {
                buffer.add(message.frame, message.bytes, m_types);
                ++findings.midiIn;
            }
        controls.push_back(buffer.value());
    }
    lilv_instance_run(m_instance.get(), frameCount);
    inspect(frameCount, findings);
    for (std::size_t i = 0; i < m_buffers.size(); ++i)
        if (m_buffers[i].port().isControlInput() && m_buffers[i].value() != controls[i])
            findings.faults.try_emplace("parameters",
                                        "the plug-in changed \"" + m_buffers[i].port().symbol + '"');
}

void PluginInstance::inspect(std::uint32_t frameCount, RunFindings& findings) const {
    for (const PortBuffer& buffer : m_buffers) {
        const PluginPort& port = buffer.port();
        const bool isMidi = port.kind == PluginPort::Kind::sequence;
        const std::string fault = buffer.outputFault(frameCount, m_types, findings.midiOut);
        if (!fault.empty())
            findings.faults.try_emplace(isMidi ? "MIDI output" : "numeric output", fault);
        if (buffer.isOverrun())
            findings.faults.try_emplace("memory", "port \"" + port.symbol + "\" was written beyond its end");
    }
}

StatePointer PluginInstance::state() {
    const auto value = [](const char* symbol, void* self, std::uint32_t* size,
                          std::uint32_t* type) -> const void* {
        auto& instance = *static_cast<PluginInstance*>(self);
        for (PortBuffer& buffer : instance.m_buffers)
            if (buffer.port().symbol == symbol && buffer.port().isControlInput()) {
                *size = sizeof(float);
                *type = instance.m_urids.id(LV2_ATOM__Float);
                return buffer.data();
            }
        *size = *type = 0;
        return nullptr;
    };
    return StatePointer(lilv_state_new_from_instance(&m_plugin, m_instance.get(), &m_urids.map, nullptr,
                                                     nullptr, nullptr, nullptr, value, this, 0,
                                                     m_features.list()));
}

} // namespace platform
