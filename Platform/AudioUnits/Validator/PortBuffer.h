#pragma once

#include "Platform/AudioUnits/Validator/OutputFaults.h"
#include "Platform/AudioUnits/Validator/PluginPort.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace platform {

/// The memory that a port is connected to, with a margin behind it that the plug-in must not touch.
class PortBuffer {
public:
    explicit PortBuffer(const PluginPort& port);

    const PluginPort& port() const { return m_port; }

    /// What to connect; null for a port that is left unconnected.
    void* data() { return m_port.kind == PluginPort::Kind::unconnected ? nullptr : m_words.data(); }

    float value() const;
    void setValue(float value);

    /// Makes an input empty and an output ready to be written.
    void prepare(const SequenceTypes& types, LV2_URID chunkType);

    /// Appends a MIDI message to an input sequence; times never decrease.
    void add(std::uint32_t frame, std::span<const std::uint8_t> bytes, const SequenceTypes& types);

    /// What is wrong with what the plug-in wrote, or empty.
    std::string outputFault(std::uint32_t frameCount, const SequenceTypes& types, int& midiCount) const;

    /// Whether something lies in the margin.
    bool isOverrun() const;

private:
    LV2_Atom_Sequence& sequence() { return *reinterpret_cast<LV2_Atom_Sequence*>(m_words.data()); }

    const LV2_Atom_Sequence& sequence() const {
        return *reinterpret_cast<const LV2_Atom_Sequence*>(m_words.data());
    }

    PluginPort m_port;
    std::size_t m_size;
    std::vector<std::uint64_t> m_words;
};

} // namespace platform
