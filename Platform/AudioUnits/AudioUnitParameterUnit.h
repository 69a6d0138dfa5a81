#pragma once

#include <cstdint>

namespace platform {

/// What the value of a parameter counts. Hosts and saved states know the numbers.
enum class AudioUnitParameterUnit : std::uint32_t {
    generic = 0,
    indexed = 1,
    boolean = 2,
    percent = 3,
    seconds = 4,
    sampleFrames = 5,
    phase = 6,
    rate = 7,
    hertz = 8,
    cents = 9,
    relativeSemiTones = 10,
    midiNoteNumber = 11,
    midiController = 12,
    decibels = 13,
    linearGain = 14,
    degrees = 15,
    equalPowerCrossfade = 16,
    mixerFaderCurve1 = 17,
    pan = 18,
    meters = 19,
    absoluteCents = 20,
    octaves = 21,
    bpm = 22,
    beats = 23,
    milliseconds = 24,
    ratio = 25,
    customUnit = 26,
    midi2Controller = 27,
};

} // namespace platform
