#include "Plugin/NoteProcessor.h"

#include <algorithm>
#include <cmath>

namespace noteloft::plugin {

namespace {

constexpr std::uint8_t noteOffStatus = 0x80;
constexpr std::uint8_t noteOnStatus = 0x90;
constexpr std::uint8_t keyPressureStatus = 0xA0;
constexpr std::uint8_t controlStatus = 0xB0;
constexpr std::uint8_t programStatus = 0xC0;
constexpr std::uint8_t channelPressureStatus = 0xD0;
constexpr std::uint8_t systemStatus = 0xF0;
constexpr std::uint8_t allSoundOff = 120;
constexpr std::uint8_t allNotesOff = 123;
constexpr std::uint8_t defaultReleaseVelocity = 64;
// Every start gives the same sequence, so that a rendering can be repeated.
constexpr std::uint32_t randomSeed = 0x9E3779B9;

bool isWellFormed(const std::uint8_t* bytes, std::uint32_t size) {
    if (size == 0 || bytes[0] < noteOffStatus)
        return false;
    if (bytes[0] >= systemStatus)
        return true;
    const auto status = bytes[0] & 0xF0;
    const std::uint32_t expected = status == programStatus || status == channelPressureStatus ? 2 : 3;
    return size == expected && std::all_of(bytes + 1, bytes + size, [](auto byte) { return byte < 0x80; });
}

} // namespace

NoteProcessor::NoteProcessor() : m_random(randomSeed) {
    for (Channel& channel : m_channels)
        channel.pitchOfKey.fill(noPitch);
}

void NoteProcessor::restart() {
    m_endAll = true;
    m_random = randomSeed;
}

void NoteProcessor::beginBlock(const NoteSettings& settings, MidiSink& sink) {
    const bool nowBypassed = m_settings.enabled && !settings.enabled;
    m_settings = settings;
    if (!settings.enabled) {
        m_settings = {};
        m_settings.enabled = false;
    }
    endWaiting(nowBypassed || m_endAll, sink);
    m_endAll = false;
}

void NoteProcessor::endWaiting(bool all, MidiSink& sink) {
    for (int channel = 0; channel < channelCount; ++channel)
        for (int pitch = 0; pitch < noteCount; ++pitch) {
            const Voice voice = m_channels[channel].voices[pitch];
            const bool released = voice == Voice::due || (voice == Voice::held && !m_settings.hold);
            if (released || (all && voice != Voice::silent))
                end(0, channel, pitch, defaultReleaseVelocity, sink);
        }
}

void NoteProcessor::process(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size,
                            MidiSink& sink) {
    if (!isWellFormed(bytes, size))
        return;
    switch (bytes[0] & 0xF0) {
    case noteOnStatus:
        return bytes[2] == 0 ? noteOff(frame, bytes, sink) : noteOn(frame, bytes, sink);
    case noteOffStatus:
        return noteOff(frame, bytes, sink);
    case keyPressureStatus:
        return keyPressure(frame, bytes, sink);
    case controlStatus:
        if (bytes[1] == allSoundOff || bytes[1] >= allNotesOff)
            endChannel(frame, bytes[0] & 0x0F, sink);
        break;
    default:
        break;
    }
    sink.write(frame, bytes, size);
}

void NoteProcessor::noteOn(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const int index = bytes[0] & 0x0F;
    Channel& channel = m_channels[index];
    const int key = bytes[1];
    const int pitch = transposed(key);
    if (!letsThrough())
        return;
    // A key may be struck again without a note-off, and after a change of the transposition.
    const int previous = channel.pitchOfKey[key];
    if (previous != noPitch)
        end(frame, index, previous, defaultReleaseVelocity, sink);
    if (channel.voices[pitch] != Voice::silent && !end(frame, index, pitch, defaultReleaseVelocity, sink))
        return;
    const std::uint8_t message[] = {bytes[0], static_cast<std::uint8_t>(pitch), scaled(bytes[2])};
    if (!sink.write(frame, message, sizeof message))
        return;
    channel.voices[pitch] = Voice::sounding;
    channel.pitchOfKey[key] = static_cast<std::int16_t>(pitch);
    channel.keyOfPitch[pitch] = static_cast<std::int16_t>(key);
}

void NoteProcessor::noteOff(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const int index = bytes[0] & 0x0F;
    Channel& channel = m_channels[index];
    const int key = bytes[1];
    const int pitch = channel.pitchOfKey[key];
    if (pitch == noPitch)
        return;
    if (m_settings.hold) {
        channel.pitchOfKey[key] = noPitch;
        channel.voices[pitch] = Voice::held;
        return;
    }
    const bool isNoteOn = (bytes[0] & 0xF0) == noteOnStatus;
    end(frame, index, pitch, isNoteOn ? defaultReleaseVelocity : bytes[2], sink);
}

void NoteProcessor::keyPressure(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const int pitch = m_channels[bytes[0] & 0x0F].pitchOfKey[bytes[1]];
    if (pitch == noPitch)
        return;
    const std::uint8_t message[] = {bytes[0], static_cast<std::uint8_t>(pitch), bytes[2]};
    sink.write(frame, message, sizeof message);
}

bool NoteProcessor::end(std::uint32_t frame, int index, int pitch, std::uint8_t velocity, MidiSink& sink) {
    Channel& channel = m_channels[index];
    std::int16_t& pitchOfKey = channel.pitchOfKey[channel.keyOfPitch[pitch]];
    if (pitchOfKey == pitch)
        pitchOfKey = noPitch;
    const std::uint8_t message[] = {static_cast<std::uint8_t>(noteOffStatus | index),
                                    static_cast<std::uint8_t>(pitch), velocity};
    const bool sent = sink.write(frame, message, sizeof message);
    channel.voices[pitch] = sent ? Voice::silent : Voice::due;
    return sent;
}

void NoteProcessor::endChannel(std::uint32_t frame, int channel, MidiSink& sink) {
    for (int pitch = 0; pitch < noteCount; ++pitch)
        if (m_channels[channel].voices[pitch] != Voice::silent)
            end(frame, channel, pitch, defaultReleaseVelocity, sink);
}

int NoteProcessor::transposed(int key) const {
    constexpr int octave = 12;
    int pitch = key + m_settings.transpose;
    // Beyond the range of MIDI the note keeps its name.
    while (pitch < 0)
        pitch += octave;
    while (pitch >= noteCount)
        pitch -= octave;
    return pitch;
}

std::uint8_t NoteProcessor::scaled(std::uint8_t velocity) const {
    const long value = std::lround(static_cast<float>(velocity) * m_settings.velocity);
    return static_cast<std::uint8_t>(std::clamp(value, 1L, 127L));
}

bool NoteProcessor::letsThrough() {
    m_random ^= m_random << 13;
    m_random ^= m_random >> 17;
    m_random ^= m_random << 5;
    constexpr float range = 1.0F / 16777216.0F;
    return static_cast<float>(m_random >> 8) * range < m_settings.chance;
}

} // namespace noteloft::plugin
