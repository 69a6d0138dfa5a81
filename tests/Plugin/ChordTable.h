#pragma once

#include "Plugin/Chord.h"

#include <string>

/// One line: what is heard when each note of the scale is played, from its root up.
inline std::string chordsOnAllDegrees(const std::string& title, const noteloft::plugin::Harmony& harmony) {
    using namespace noteloft::plugin;
    constexpr int middleC = 60;
    constexpr int octave = 12;
    std::string line;
    for (int key = middleC + harmony.root; key < middleC + harmony.root + octave; ++key) {
        if (!contains(harmony.scale, harmony.root, key))
            continue;
        line += line.empty() ? ": " : " | ";
        std::string chord;
        const ChordPitches heard(key, harmony);
        for (const int pitch : heard.pitches())
            chord += (chord.empty() ? "" : " ") + std::string(noteNames[pitch % octave]);
        line += chord;
    }
    return title + line + '\n';
}
