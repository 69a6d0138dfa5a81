#pragma once

#include "Platform/AudioUnits/LilvPointers.h"
#include "Platform/AudioUnits/Validator/HostFeatures.h"
#include "Platform/AudioUnits/Validator/PortBuffer.h"

#include <map>
#include <span>
#include <string>
#include <vector>

namespace platform {

/// A MIDI message and its frame within a block.
struct TimedMidi {
    std::uint32_t frame;
    std::vector<std::uint8_t> bytes;
};

/// What went wrong while a plug-in ran: for each check the first fault.
struct RunFindings {
    std::map<std::string, std::string> faults;
    int midiIn = 0;
    int midiOut = 0;
};

/// A running plug-in with all its ports connected.
class PluginInstance {
public:
    /// `isValid` is false if the plug-in refused. Everything given must outlive the instance.
    PluginInstance(const LilvPlugin& plugin, const std::vector<PluginPort>& ports, UridMap& urids,
                   const HostFeatures& features, double sampleRate);

    bool isValid() const { return m_instance != nullptr; }

    void activate() { lilv_instance_activate(m_instance.get()); }

    void deactivate() { lilv_instance_deactivate(m_instance.get()); }

    std::vector<PortBuffer>& buffers() { return m_buffers; }

    /// Runs one block of at most `HostFeatures::maximumBlockLength` frames; the MIDI messages go to every
    /// port that takes them. Faults are added to `findings`.
    void run(std::uint32_t frameCount, std::span<const TimedMidi> midi, RunFindings& findings);

    /// What the plug-in would have saved with a project.
    StatePointer state();

private:
    void inspect(std::uint32_t frameCount, RunFindings& findings) const;

    const LilvPlugin& m_plugin;
    UridMap& m_urids;
    const HostFeatures& m_features;
    SequenceTypes m_types;
    LV2_URID m_chunkType;
    std::vector<PortBuffer> m_buffers;
    InstancePointer m_instance;
};

} // namespace platform
