#include "Platform/AudioUnits/Validator/PluginPort.h"

#include "Platform/AudioUnits/LilvPointers.h"

#include <lv2/atom/atom.h>
#include <lv2/core/lv2.h>
#include <lv2/midi/midi.h>

#include <cmath>

namespace platform {

namespace {

class PortReader {
public:
    PortReader(LilvWorld& world, const LilvPlugin& plugin, std::uint32_t index)
        : m_world(world), m_plugin(plugin), m_port(lilv_plugin_get_port_by_index(&plugin, index)) {}

    bool is(const char* uri) const { return lilv_port_is_a(&m_plugin, m_port, uriNode(m_world, uri).get()); }

    bool has(const char* property) const {
        return lilv_port_has_property(&m_plugin, m_port, uriNode(m_world, property).get());
    }

    bool supports(const char* type) const {
        return lilv_port_supports_event(&m_plugin, m_port, uriNode(m_world, type).get());
    }

    std::string symbol() const { return lilv_node_as_string(lilv_port_get_symbol(&m_plugin, m_port)); }

    std::optional<PluginPort::Kind> kind() const {
        using enum PluginPort::Kind;
        if (is(LV2_CORE__ControlPort))
            return control;
        if (is(LV2_CORE__AudioPort))
            return audio;
        if (is(LV2_CORE__CVPort))
            return cv;
        if (is(LV2_ATOM__AtomPort))
            return sequence;
        return has(LV2_CORE__connectionOptional) ? std::optional(unconnected) : std::nullopt;
    }

    void readRange(PluginPort& port) const {
        LilvNode* nodes[3] = {};
        lilv_port_get_range(&m_plugin, m_port, &nodes[0], &nodes[1], &nodes[2]);
        float* const values[] = {&port.defaultValue, &port.minimum, &port.maximum};
        for (int i = 0; i < 3; ++i) {
            const NodePointer node(nodes[i]);
            if (node)
                *values[i] = lilv_node_as_float(node.get());
        }
    }

private:
    LilvWorld& m_world;
    const LilvPlugin& m_plugin;
    const LilvPort* m_port;
};

} // namespace

std::optional<PluginPort> PluginPort::read(LilvWorld& world, const LilvPlugin& plugin, std::uint32_t index) {
    const PortReader reader(world, plugin, index);
    const auto kind = reader.kind();
    if (!kind)
        return {};
    PluginPort port{.index = index,
                    .symbol = reader.symbol(),
                    .kind = *kind,
                    .isInput = reader.is(LV2_CORE__InputPort),
                    .takesMidi = reader.supports(LV2_MIDI__MidiEvent)};
    reader.readRange(port);
    return port;
}

} // namespace platform
