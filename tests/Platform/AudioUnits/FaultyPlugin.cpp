// Plug-ins that misbehave, each in the way that the end of its URI names.
#include <lv2/atom/atom.h>
#include <lv2/atom/util.h>
#include <lv2/core/lv2.h>
#include <lv2/midi/midi.h>
#include <lv2/urid/urid.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include <unistd.h>

namespace {

constexpr const char* uris[] = {FAULTY_PLUGIN_URIS};

class FaultyPlugin {
public:
    FaultyPlugin(std::string_view uri, const LV2_URID_Map& map)
        : m_fault(uri.substr(uri.rfind('/') + 1)),
          m_sequenceType(map.map(map.handle, LV2_ATOM__Sequence)),
          m_midiType(map.map(map.handle, LV2_MIDI__MidiEvent)) {}

    void connect(std::uint32_t port, void* data) { m_ports.at(port) = data; }

    void activate() {
        if (m_fault == "reset")
            *static_cast<float*>(m_ports[2]) += 1;
    }

    void run(std::uint32_t frameCount) {
        auto* output = static_cast<LV2_Atom_Sequence*>(m_ports[1]);
        m_capacity = output->atom.size;
        output->atom.type = m_sequenceType;
        output->body = {};
        lv2_atom_sequence_clear(output);
        *static_cast<float*>(m_ports[3]) = m_fault == "nan" ? std::nanf("") : 0;
        misbehave(frameCount);
    }

private:
    void misbehave(std::uint32_t frameCount) {
        if (m_fault == "crash")
            std::abort();
        if (m_fault == "exit")
            _exit(0);
        while (m_fault == "hang")
            pause();
        if (m_fault == "noise") {
            std::puts("L____this is not the line that it looks like");
            std::fflush(stdout);
        }
        if (m_fault == "parameter")
            *static_cast<float*>(m_ports[2]) += 1;
        if (m_fault == "overrun")
            static_cast<float*>(m_ports[3])[2] = 1;
        if (frameCount < 64)
            return;
        if (m_fault == "order") {
            write(60, 0xF8);
            write(3, 0xF8);
        }
        if (m_fault == "late")
            write(frameCount, 0xF8);
        if (m_fault == "status")
            write(0, 0x12);
    }

    void write(std::int64_t frame, std::uint8_t status) {
        auto* sequence = static_cast<LV2_Atom_Sequence*>(m_ports[1]);

        struct {
            LV2_Atom_Event event;
            std::uint8_t byte;
        } message = {{{frame}, {1, m_midiType}}, status};

        lv2_atom_sequence_append_event(sequence, m_capacity, &message.event);
    }

    std::string_view m_fault;
    LV2_URID m_sequenceType;
    LV2_URID m_midiType;
    std::uint32_t m_capacity = 0;
    std::array<void*, 4> m_ports{};
};

LV2_Handle instantiate(const LV2_Descriptor* descriptor, double, const char*,
                       const LV2_Feature* const* features) {
    for (; *features != nullptr; ++features)
        if (std::strcmp((*features)->URI, LV2_URID__map) == 0 &&
            !std::string_view(descriptor->URI).ends_with("/refuse"))
            return new FaultyPlugin(descriptor->URI, *static_cast<const LV2_URID_Map*>((*features)->data));
    return nullptr;
}

FaultyPlugin& plugin(LV2_Handle handle) {
    return *static_cast<FaultyPlugin*>(handle);
}

} // namespace

LV2_SYMBOL_EXPORT const LV2_Descriptor* lv2_descriptor(std::uint32_t index) {
    static auto descriptors = [] {
        std::array<LV2_Descriptor, std::size(uris)> all{};
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = {
                uris[i],
                instantiate,
                [](LV2_Handle handle, std::uint32_t port, void* data) { plugin(handle).connect(port, data); },
                [](LV2_Handle handle) { plugin(handle).activate(); },
                [](LV2_Handle handle, std::uint32_t count) { plugin(handle).run(count); },
                nullptr,
                [](LV2_Handle handle) { delete &plugin(handle); },
                nullptr};
        return all;
    }();
    return index < descriptors.size() ? &descriptors[index] : nullptr;
}
