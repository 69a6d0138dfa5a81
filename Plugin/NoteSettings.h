#pragma once

namespace noteloft::plugin {

/// What the user sets. The defaults leave every note as it is.
struct NoteSettings {
    /// Semitones, -24 to 24.
    int transpose = 0;
    /// Factor of a note's velocity, 0 to 2; a note never becomes silent or louder than MIDI allows.
    float velocity = 1;
    /// The probability with which a note is let through, 0 to 1.
    float chance = 1;
    /// Notes sound on after their keys are let go, until this is switched off.
    bool hold = false;
    /// Off: sounding notes end and everything passes unchanged.
    bool enabled = true;
};

} // namespace noteloft::plugin
