#pragma once

namespace noteloft::plugin {

/// In the order of `scaleNames`.
enum class Scale {
    chromatic,
    major,
    minor,
    harmonicMinor,
    dorian,
    phrygian,
    lydian,
    mixolydian,
    majorPentatonic,
    minorPentatonic,
    blues,
    wholeTone,
};

inline constexpr const char* scaleNames[] = {"Chromatic",   "Major",       "Minor",  "Harmonic",
                                             "Dorian",      "Phrygian",    "Lydian", "Mixolydian",
                                             "Major Penta", "Minor Penta", "Blues",  "Whole Tone"};

inline constexpr const char* noteNames[] = {"C", "C#", "D", "D#", "E", "F", "F#", "G", "G#", "A", "A#", "B"};

/// Whether the scale on `root`, a pitch class (0 is C), has the pitch. Any integer is a pitch here.
bool contains(Scale scale, int root, int pitch);

/// The nearest pitch of the scale; of two equally near the lower.
int nearestPitch(Scale scale, int root, int pitch);

/// How many notes an octave of it has.
int noteCount(Scale scale);

/// The pitch of the scale that is so many of its steps above `pitch`, which is in it.
int pitchAbove(Scale scale, int root, int pitch, int steps);

/// Brings a pitch into the range of MIDI, 0 to 127, by whole octaves.
int withinMidi(int pitch);

} // namespace noteloft::plugin
