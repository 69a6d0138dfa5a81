#include "Platform/AudioUnits/Validator/OutputFaults.h"

#include <gtest/gtest.h>

#include <vector>

using platform::midiMessageFault;
using platform::sequenceFault;

TEST(MidiMessageFault, AcceptsEveryDefinedMessage) {
    using Bytes = std::vector<std::uint8_t>;
    for (const Bytes& bytes : {Bytes{0x80, 0, 0}, Bytes{0x9F, 127, 127}, Bytes{0xC0, 1}, Bytes{0xD5, 1},
                               Bytes{0xE0, 0, 64}, Bytes{0xF0, 0xF7}, Bytes{0xF0, 1, 2, 0xF7}, Bytes{0xF1, 1},
                               Bytes{0xF2, 1, 2}, Bytes{0xF3, 1}, Bytes{0xF6}, Bytes{0xF8}, Bytes{0xFF}})
        EXPECT_EQ(midiMessageFault(bytes), "") << int{bytes[0]};
    for (const Bytes& bytes :
         {Bytes{}, Bytes{60, 100}, Bytes{0x80, 0}, Bytes{0x80, 0, 128}, Bytes{0xC0, 1, 1}, Bytes{0xF0},
          Bytes{0xF0, 1}, Bytes{0xF0, 0x90, 0xF7}, Bytes{0xF4}, Bytes{0xF5}, Bytes{0xF7}, Bytes{0xF9},
          Bytes{0xFD}, Bytes{0xF8, 0}})
        EXPECT_NE(midiMessageFault(bytes), "") << (bytes.empty() ? -1 : int{bytes[0]});
}

TEST(SequenceFault, DoesNotReadBeyondWhatItIsGiven) {
    constexpr std::uint32_t capacity = sizeof(LV2_Atom_Sequence_Body) + sizeof(LV2_Atom_Event) + 8;
    std::vector<std::uint64_t> words((sizeof(LV2_Atom) + capacity) / 8);
    auto& sequence = *reinterpret_cast<LV2_Atom_Sequence*>(words.data());
    auto& event = *reinterpret_cast<LV2_Atom_Event*>(&sequence + 1);
    sequence.atom = {capacity, 1};
    event.body = {1, 2};
    *reinterpret_cast<std::uint8_t*>(&event + 1) = 0xF8;
    int count = 0;
    EXPECT_EQ(sequenceFault(sequence, capacity, 1, {1, 2}, count), "");
    EXPECT_EQ(count, 1);
    event.body.size = 9;
    EXPECT_NE(sequenceFault(sequence, capacity, 1, {1, 2}, count), "");
    event.body.size = 0xFFFFFFFF;
    EXPECT_NE(sequenceFault(sequence, capacity, 1, {1, 2}, count), "");
    sequence.atom.size = capacity + 8;
    EXPECT_NE(sequenceFault(sequence, capacity, 1, {1, 2}, count), "");
    sequence.atom.size = capacity - 16;
    EXPECT_NE(sequenceFault(sequence, capacity, 1, {1, 2}, count), "") << "half an event header";
}
