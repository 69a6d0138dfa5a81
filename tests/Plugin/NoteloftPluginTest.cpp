#include "Plugin/NoteloftPlugin.h"
#include "tests/support/AllocationCounter.h"

#include <lv2/atom/util.h>
#include <lv2/midi/midi.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <map>
#include <string>
#include <vector>

using namespace noteloft::plugin;

namespace {

LV2_URID mapUri(LV2_URID_Map_Handle, const char* uri) {
    static std::map<std::string, LV2_URID> known;
    return known.try_emplace(uri, static_cast<LV2_URID>(known.size() + 1)).first->second;
}

struct alignas(8) SequenceBuffer {
    std::array<std::uint8_t, 1024> bytes{};

    LV2_Atom_Sequence* sequence() { return reinterpret_cast<LV2_Atom_Sequence*>(bytes.data()); }
};

class NoteloftPluginTest : public testing::Test {
protected:
    NoteloftPluginTest() {
        m_plugin.connect(0, m_input.sequence());
        m_plugin.connect(1, m_output.sequence());
        for (const ControlPort& port : controlPorts()) {
            m_controls[port.index] = port.initial;
            m_plugin.connect(port.index, &m_controls[port.index]);
        }
        m_plugin.activate();
        clearInput();
    }

    void clearInput() {
        lv2_atom_sequence_clear(m_input.sequence());
        m_input.sequence()->atom.type = mapUri(nullptr, LV2_ATOM__Sequence);
    }

    void add(std::int64_t frame, const std::vector<std::uint8_t>& bytes,
             LV2_URID type = mapUri(nullptr, LV2_MIDI__MidiEvent)) {
        auto* sequence = m_input.sequence();
        auto* event = lv2_atom_sequence_end(&sequence->body, sequence->atom.size);
        event->time.frames = frame;
        event->body = {static_cast<std::uint32_t>(bytes.size()), type};
        std::memcpy(event + 1, bytes.data(), bytes.size());
        sequence->atom.size += sizeof(LV2_Atom_Event) + lv2_atom_pad_size(event->body.size);
    }

    // A message is its frame and its bytes.
    std::vector<std::vector<int>> run(std::uint32_t frames, std::uint32_t room = 512) {
        m_output.sequence()->atom = {room, 0};
        m_plugin.run(frames);
        std::vector<std::vector<int>> messages;
        LV2_ATOM_SEQUENCE_FOREACH(m_output.sequence(), event) {
            const auto* bytes = reinterpret_cast<const std::uint8_t*>(event + 1);
            messages.emplace_back(1, static_cast<int>(event->time.frames));
            messages.back().insert(messages.back().end(), bytes, bytes + event->body.size);
        }
        clearInput();
        return messages;
    }

    LV2_URID_Map m_map{nullptr, mapUri};
    NoteloftPlugin m_plugin{48000, m_map, 1};
    SequenceBuffer m_input;
    SequenceBuffer m_output;
    std::array<float, Ports::count> m_controls{};
};

using Messages = std::vector<std::vector<int>>;

} // namespace

TEST_F(NoteloftPluginTest, ControlsHaveTheirUnits) {
    m_controls[Ports::transpose] = 11.6F;
    m_controls[Ports::velocity] = 50;
    add(5, {0x90, 60, 100});
    EXPECT_EQ(run(64), (Messages{{5, 0x90, 72, 50}}));
    m_controls[Ports::transpose] = 1000;
    m_controls[Ports::chance] = -5;
    add(6, {0x90, 61, 100});
    add(7, {0x80, 60, 0});
    EXPECT_EQ(run(64), (Messages{{7, 0x80, 72, 0}})) << "no chance is left";
    m_controls[Ports::enabled] = 0;
    add(8, {0x90, 60, 100});
    EXPECT_EQ(run(64), (Messages{{8, 0x90, 60, 100}}));
}

TEST_F(NoteloftPluginTest, ChordsAreStrummedInMilliseconds) {
    m_controls[Ports::root] = 2;
    m_controls[Ports::scale] = static_cast<float>(Scale::minor);
    m_controls[Ports::chord] = static_cast<float>(Chord::major);
    m_controls[Ports::strum] = 1.5F;
    m_controls[Ports::direction] = 1;
    m_controls[Ports::velocity] = std::numeric_limits<float>::quiet_NaN();
    add(10, {0x90, 62, 100});
    EXPECT_EQ(run(256), (Messages{{10, 0x90, 69, 100}, {82, 0x90, 65, 100}, {154, 0x90, 62, 100}}));
}

TEST_F(NoteloftPluginTest, FramesThatGoBackwardsOrOutsideStayInTheBlock) {
    for (const std::int64_t frame : {20, 10, 1000})
        add(frame, {0xB0, 1, 1});
    EXPECT_EQ(run(64), (Messages{{20, 0xB0, 1, 1}, {20, 0xB0, 1, 1}, {63, 0xB0, 1, 1}}));
}

TEST_F(NoteloftPluginTest, RespectsTheRoomInTheOutput) {
    const std::uint32_t twoEvents = sizeof(LV2_Atom_Sequence_Body) + 2 * (sizeof(LV2_Atom_Event) + 8);
    for (int i = 0; i < 3; ++i)
        add(i, {0x90, static_cast<std::uint8_t>(60 + i), 100});
    EXPECT_EQ(run(64, twoEvents), (Messages{{0, 0x90, 60, 100}, {1, 0x90, 61, 100}}));
    add(0, {0x80, 60, 0});
    m_output.sequence()->body = {};
    EXPECT_TRUE(run(64, sizeof(LV2_Atom_Sequence_Body)).empty());
    EXPECT_EQ(run(64), (Messages{{0, 0x80, 60, 0}}));
}

TEST_F(NoteloftPluginTest, EmptyBlockSendsNothingOfItsOwn) {
    add(0, {0x90, 60, 100});
    run(64);
    m_plugin.activate();
    EXPECT_TRUE(run(0).empty());
    EXPECT_EQ(run(1), (Messages{{0, 0x80, 60, 64}}));
}

TEST_F(NoteloftPluginTest, RunDoesNotAllocate) {
    for (int i = 0; i < 20; ++i)
        add(i, {0x90, static_cast<std::uint8_t>(40 + i), 100});
    m_controls[Ports::chord] = static_cast<float>(Chord::major7);
    m_controls[Ports::strum] = 1;
    m_controls[Ports::timing] = 1;
    m_controls[Ports::hold] = 1;
    m_output.sequence()->atom = {512, 0};
    const AllocationCounter counter;
    m_plugin.run(64);
    m_controls[Ports::hold] = 0;
    m_output.sequence()->atom = {512, 0};
    m_plugin.run(64);
    EXPECT_EQ(counter.allocations(), 0);
    ::operator delete(::operator new(1));
    EXPECT_EQ(counter.allocations(), 1) << "allocations are counted";
}
