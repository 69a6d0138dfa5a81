#pragma once

#include "Plugin/Chord.h"

namespace noteloft::plugin {

/// In which order a chord's notes are struck. Alternate: every other chord goes down.
enum class StrumDirection { up, down, alternate };

/// What the user sets. The defaults leave every note as it is.
struct NoteSettings {
    Harmony harmony = {};
    double strum = 0; ///< Seconds from one note of a chord to the next.
    StrumDirection direction = StrumDirection::up;
    /// Factor of a note's velocity, 0 to 2; a note never becomes silent or louder than MIDI allows.
    float velocity = 1;
    /// How far chance may change a note's velocity, as a share of it, 0 to 1.
    float dynamics = 0;
    double timing = 0; ///< Seconds by which chance may make a note late, at most.
    /// The probability with which a key is let through, 0 to 1.
    float chance = 1;
    /// Notes sound on after their keys are let go, until this is switched off.
    bool hold = false;
    /// Off: sounding notes end and everything passes unchanged.
    bool enabled = true;
};

} // namespace noteloft::plugin
