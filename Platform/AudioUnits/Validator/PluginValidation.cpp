#include "Platform/AudioUnits/Validator/PluginValidation.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

constexpr double sampleRates[] = {22050, 44100, 48000, 96000, 192000};
constexpr double usualSampleRate = 48000;
constexpr std::uint32_t usualBlockLength = 256;
constexpr std::uint32_t blockLengths[] = {64,  0,    1, 2,    7,
                                          333, 1024, 0, 4095, HostFeatures::maximumBlockLength};

// Somebody plays: chords, the same key twice, the outermost keys, controllers, an exclusive message, the
// clock.
std::vector<TimedMidi> performance(std::uint32_t frameCount) {
    const std::vector<std::uint8_t> messages[] = {
        {0x90, 60, 100}, {0x90, 64, 1},  {0xB0, 1, 127},  {0x90, 60, 127}, {0xE0, 127, 127},
        {0xA0, 64, 90},  {0x91, 60, 64}, {0xD0, 127},     {0x90, 60, 0},   {0x90, 127, 127},
        {0x90, 0, 127},  {0xF8},         {0x80, 64, 127}, {0xC0, 5},       {0xF0, 0x7D, 1, 2, 0xF7},
        {0x80, 127, 0},  {0x80, 0, 0},   {0x81, 60, 0},   {0x80, 99, 0},   {0xB0, 123, 0}};
    std::vector<TimedMidi> result;
    if (frameCount == 0)
        return result;
    for (std::uint32_t i = 0; i < std::size(messages); ++i)
        result.push_back(
            {static_cast<std::uint32_t>(std::uint64_t{i} * (frameCount - 1) / (std::size(messages) - 1)),
             messages[i]});
    return result;
}

std::string path(const std::string& directory) {
    return directory.ends_with('/') ? directory : directory + '/';
}

} // namespace

bool PluginValidation::report(const std::string& check, const std::string& fault) {
    ++m_checkCount;
    m_faultCount += fault.empty() ? 0 : 1;
    m_channel.line(fault.empty() ? "PASS " + check : "FAIL " + check + ": " + fault);
    return fault.empty();
}

bool PluginValidation::run(const std::string& uri, const std::string& bundle) {
    m_channel.line("Validating " + uri);
    if (report("load", load(uri, bundle)) && report("ports", readPorts()) &&
        report("required features", featureFault()) && report("instantiate", instantiationFault())) {
        RunFindings findings;
        for (const double sampleRate : sampleRates)
            runBlockLengths(sampleRate, findings);
        m_channel.line("Ran blocks of 0 to " + std::to_string(HostFeatures::maximumBlockLength) + " frames");
        sweepParameters(findings);
        const std::string reactivation = reactivationFault(findings);
        for (const char* check : {"parameters", "MIDI output", "numeric output", "memory"})
            report(check, findings.faults[check]);
        m_channel.line(std::to_string(findings.midiIn) + " MIDI messages went in, " +
                       std::to_string(findings.midiOut) + " came out");
        report("activate again", reactivation);
    }
    m_channel.line(m_faultCount == 0 ? "All " + std::to_string(m_checkCount) + " checks passed"
                                     : std::to_string(m_faultCount) + " of " + std::to_string(m_checkCount) +
                                           " checks failed");
    return m_faultCount == 0;
}

std::string PluginValidation::load(const std::string& uri, const std::string& bundle) {
    m_world.reset(lilv_world_new());
    const NodePointer directory(lilv_new_file_uri(m_world.get(), nullptr, path(bundle).c_str()));
    lilv_world_load_bundle(m_world.get(), directory.get());
    m_plugin = lilv_plugins_get_by_uri(lilv_world_get_all_plugins(m_world.get()),
                                       uriNode(*m_world, uri.c_str()).get());
    if (m_plugin == nullptr)
        return "the bundle does not have this plug-in";
    return lilv_plugin_verify(m_plugin) ? "" : "the plug-in's data are incomplete";
}

std::string PluginValidation::readPorts() {
    for (std::uint32_t index = 0; index < lilv_plugin_get_num_ports(m_plugin); ++index) {
        const auto port = PluginPort::read(*m_world, *m_plugin, index);
        if (!port)
            return "port " + std::to_string(index) + " is of an unknown kind";
        if (port->isControlInput() &&
            !(port->minimum <= port->defaultValue && port->defaultValue <= port->maximum))
            return "the default of \"" + port->symbol + "\" lies outside its range";
        m_ports.push_back(*port);
    }
    return {};
}

std::string PluginValidation::featureFault() const {
    const NodesPointer required(lilv_plugin_get_required_features(m_plugin));
    LILV_FOREACH(nodes, i, required.get()) {
        const char* uri = lilv_node_as_uri(lilv_nodes_get(required.get(), i));
        if (!m_features.has(uri))
            return std::string(uri) + " is not offered";
    }
    return {};
}

std::string PluginValidation::instantiationFault() {
    for (const double sampleRate : sampleRates)
        if (!instance(sampleRate).isValid())
            return "the plug-in refused a sample rate of " + std::to_string(std::lround(sampleRate)) + " Hz";
    return {};
}

void PluginValidation::runBlockLengths(double sampleRate, RunFindings& findings) {
    PluginInstance running = instance(sampleRate);
    if (!running.isValid())
        return;
    running.activate();
    for (const std::uint32_t length : blockLengths)
        running.run(length, performance(length), findings);
    running.deactivate();
}

void PluginValidation::sweepParameters(RunFindings& findings) {
    PluginInstance running = instance(usualSampleRate);
    if (!running.isValid())
        return;
    running.activate();
    for (PortBuffer& buffer : running.buffers()) {
        const PluginPort& port = buffer.port();
        if (!port.isControlInput())
            continue;
        for (const float value : {port.minimum, port.maximum, port.defaultValue}) {
            buffer.setValue(value);
            running.run(usualBlockLength, performance(usualBlockLength), findings);
        }
        m_channel.line("Swept " + port.symbol);
    }
    running.deactivate();
}

std::string PluginValidation::reactivationFault(RunFindings& findings) {
    PluginInstance running = instance(usualSampleRate);
    if (!running.isValid())
        return "the plug-in could not be made again";
    for (PortBuffer& buffer : running.buffers())
        if (buffer.port().isControlInput())
            buffer.setValue(buffer.port().maximum);
    running.activate();
    running.run(usualBlockLength, performance(usualBlockLength), findings);
    const StatePointer before = running.state();
    running.deactivate();
    running.activate();
    const StatePointer after = running.state();
    running.run(usualBlockLength, performance(usualBlockLength), findings);
    running.deactivate();
    const bool isSame = lilv_state_equals(before.get(), after.get());
    return isSame ? "" : "the state is not what it was before";
}

} // namespace platform
