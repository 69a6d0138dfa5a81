// A host saves the plug-in in a session and finds it again.
#include "InstalledPlugin.h"

#include "Plugin/ControlPorts.h"

#include <lv2/atom/util.h>
#include <lv2/midi/midi.h>
#include <lv2/state/state.h>
#include <lv2/urid/urid.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <string>
#include <vector>

using namespace noteloft::plugin;

namespace {

using State = std::unique_ptr<LilvState, Free<lilv_state_free>>;

class Uris {
public:
    LV2_URID_Map map{this, [](LV2_URID_Map_Handle uris, const char* uri) {
                         return static_cast<Uris*>(uris)->number(uri);
                     }};
    LV2_URID_Unmap unmap{this, [](LV2_URID_Unmap_Handle uris, LV2_URID number) {
                             return static_cast<Uris*>(uris)->m_known[number - 1].c_str();
                         }};

private:
    LV2_URID number(const std::string& uri) {
        for (std::size_t i = 0; i < m_known.size(); ++i)
            if (m_known[i] == uri)
                return static_cast<LV2_URID>(i + 1);
        m_known.push_back(uri);
        return static_cast<LV2_URID>(m_known.size());
    }

    std::vector<std::string> m_known;
};

/// An instance of the plug-in in a host.
class Instance {
public:
    Instance(const InstalledPlugin& installed, Uris& uris)
        : m_uris(uris), m_instance(lilv_plugin_instantiate(installed.plugin, 48000, m_features)) {
        for (const ControlPort& port : controlPorts()) {
            m_controls[port.index] = port.initial;
            lilv_instance_connect_port(m_instance, port.index, &m_controls[port.index]);
        }
        m_controls[Ports::dynamics] = 100;
        lilv_instance_connect_port(m_instance, Ports::midiIn, m_input.data());
        lilv_instance_connect_port(m_instance, Ports::midiOut, m_output.data());
    }

    ~Instance() { lilv_instance_free(m_instance); }

    Instance(const Instance&) = delete;
    Instance& operator=(const Instance&) = delete;

    LilvInstance* get() const { return m_instance; }

    /// The velocities that some keys get from their start.
    std::vector<int> play() {
        lilv_instance_activate(m_instance);
        auto* const input = reinterpret_cast<LV2_Atom_Sequence*>(m_input.data());
        auto* const output = reinterpret_cast<LV2_Atom_Sequence*>(m_output.data());
        lv2_atom_sequence_clear(input);
        const auto number = [&](const char* uri) { return m_uris.map.map(m_uris.map.handle, uri); };
        input->atom.type = number(LV2_ATOM__Sequence);
        constexpr std::uint32_t frames = 64;
        constexpr std::uint32_t inputRoom = 1024;
        for (std::uint8_t key = 40; key < 50; ++key) {
            struct {
                LV2_Atom_Event event;
                std::uint8_t bytes[3];
            } note{{{0}, {3, number(LV2_MIDI__MidiEvent)}}, {0x90, key, 64}};

            lv2_atom_sequence_append_event(input, inputRoom, &note.event);
        }
        output->atom.size =
            static_cast<std::uint32_t>(m_output.size() * sizeof m_output[0] - sizeof(LV2_Atom));
        lilv_instance_run(m_instance, frames);
        lilv_instance_deactivate(m_instance);
        std::vector<int> velocities;
        LV2_ATOM_SEQUENCE_FOREACH(output, event)
        if (const auto* bytes = reinterpret_cast<const std::uint8_t*>(event + 1); bytes[0] == 0x90)
            velocities.push_back(bytes[2]);
        return velocities;
    }

private:
    Uris& m_uris;
    LV2_Feature m_mapFeature{LV2_URID__map, &m_uris.map};
    const LV2_Feature* const m_features[2] = {&m_mapFeature, nullptr};
    LilvInstance* const m_instance;
    std::array<float, Ports::count> m_controls{};
    std::array<std::uint64_t, 256> m_input{};
    std::array<std::uint64_t, 256> m_output{};
};

/// The text of a session with one instance.
std::string save(const InstalledPlugin& installed, Uris& uris, const Instance& instance) {
    const State state(lilv_state_new_from_instance(installed.plugin, instance.get(), &uris.map, nullptr,
                                                   nullptr, nullptr, nullptr, nullptr, nullptr,
                                                   LV2_STATE_IS_POD | LV2_STATE_IS_PORTABLE, nullptr));
    char* const text = lilv_state_to_string(installed.world.get(), &uris.map, &uris.unmap, state.get(),
                                            "http://quillfen.example/session", nullptr);
    EXPECT_NE(text, nullptr);
    std::string saved(text);
    std::free(text);
    return saved;
}

void restore(const InstalledPlugin& installed, Uris& uris, const std::string& text,
             const Instance& instance) {
    const State found(lilv_state_new_from_string(installed.world.get(), &uris.map, text.c_str()));
    lilv_state_restore(found.get(), instance.get(), nullptr, nullptr, 0, nullptr);
}

} // namespace

TEST(State, EveryInstanceHasAHandOfItsOwnThatASessionKeeps) {
    const InstalledPlugin installed;
    ASSERT_NE(installed.plugin, nullptr);
    Uris uris;
    Instance first(installed, uris);
    Instance second(installed, uris);
    const auto played = first.play();
    ASSERT_EQ(played.size(), 10U);
    EXPECT_NE(second.play(), played);
    EXPECT_EQ(first.play(), played) << "a rendering can be repeated";
    restore(installed, uris, save(installed, uris, first), second);
    EXPECT_EQ(second.play(), played);
    const std::string preset =
        "<http://quillfen.example/session> a <http://lv2plug.in/ns/ext/presets#Preset> ; "
        "<http://lv2plug.in/ns/lv2core#appliesTo> "
        "<http://quillfen.example/plugins/noteloft> .";
    restore(installed, uris, preset, second);
    EXPECT_EQ(second.play(), played) << "a preset has no hand";
}
