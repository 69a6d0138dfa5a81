#pragma once

#include "Platform/AudioUnits/LilvPointers.h"
#include "Platform/AudioUnits/Validator/HostFeatures.h"
#include "Platform/AudioUnits/Validator/PluginInstance.h"
#include "Platform/AudioUnits/Validator/PluginPort.h"
#include "Platform/AudioUnits/Validator/ResultsChannel.h"

#include <string>
#include <vector>

namespace platform {

/// Tries one plug-in in this process, with a line of output for each check. The plug-in may crash or hang:
/// that ends this process or lets the one that waits for it lose patience.
class PluginValidation {
public:
    explicit PluginValidation(const ResultsChannel& channel) : m_channel(channel), m_features(m_urids) {}

    /// `bundle` is the plug-in's directory. True if every check passed.
    bool run(const std::string& uri, const std::string& bundle);

private:
    bool report(const std::string& check, const std::string& fault);
    std::string load(const std::string& uri, const std::string& bundle);
    std::string readPorts();
    std::string featureFault() const;
    std::string instantiationFault();
    std::string reactivationFault(RunFindings& findings);
    void runBlockLengths(double sampleRate, RunFindings& findings);
    void sweepParameters(RunFindings& findings);

    PluginInstance instance(double sampleRate) {
        return {*m_plugin, m_ports, m_urids, m_features, sampleRate};
    }

    const ResultsChannel& m_channel;
    UridMap m_urids;
    HostFeatures m_features;
    WorldPointer m_world;
    const LilvPlugin* m_plugin = nullptr;
    std::vector<PluginPort> m_ports;
    int m_checkCount = 0;
    int m_faultCount = 0;
};

} // namespace platform
