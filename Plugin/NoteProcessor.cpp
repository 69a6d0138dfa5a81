#include "Plugin/NoteProcessor.h"

#include "Plugin/MidiStatus.h"

#include <algorithm>
#include <cmath>

namespace noteloft::plugin {

using Kind = NoteSchedule::Kind;

namespace {

bool isWellFormed(const std::uint8_t* bytes, std::uint32_t size) {
    if (size == 0 || bytes[0] < midi::noteOff)
        return false;
    if (bytes[0] >= midi::system)
        return true;
    const auto status = bytes[0] & 0xF0;
    const std::uint32_t expected = status == midi::program || status == midi::channelPressure ? 2 : 3;
    return size == expected && std::all_of(bytes + 1, bytes + size, [](auto byte) { return byte < 0x80; });
}

} // namespace

void NoteProcessor::restart() {
    m_restarts = true;
    m_random = Random(m_seed);
    m_lastWentDown = true;
}

void NoteProcessor::beginBlock(const NoteSettings& settings, MidiSink& blockSink) {
    const bool nowBypassed = m_settings.enabled && !settings.enabled;
    m_settings = settings;
    if (!settings.enabled) {
        m_settings = {};
        m_settings.enabled = false;
    }
    m_backlog.send(blockSink);
    OrderedSink sink(m_backlog, blockSink);
    m_output.sendDue(0, sink);
    if (nowBypassed || m_restarts) {
        m_schedule.clear();
        m_output.endAll(0, sink);
        for (auto& channel : m_strikes)
            channel.fill({});
    } else if (!m_settings.hold) {
        m_output.endHeld(0, sink);
    }
    m_restarts = false;
}

void NoteProcessor::endBlock(std::uint32_t frameCount, MidiSink& blockSink) {
    OrderedSink sink(m_backlog, blockSink);
    playUntil(m_blockStart + frameCount - 1, sink);
    m_blockStart += frameCount;
}

void NoteProcessor::process(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size,
                            MidiSink& blockSink) {
    OrderedSink sink(m_backlog, blockSink);
    if (size > 0 && !m_settings.enabled)
        return pass(frame, bytes, size, sink);
    if (!isWellFormed(bytes, size))
        return;
    playUntil(m_blockStart + frame, sink);
    if (handleNote(frame, bytes, sink))
        return;
    if (midi::isChannelEnd(bytes, size)) {
        const std::uint8_t channel = bytes[0] & 0x0F;
        m_schedule.dropChannel(channel);
        m_output.endChannel(frame, channel, sink);
    }
    sink.write(frame, bytes, size);
}

void NoteProcessor::pass(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size, MidiSink& sink) {
    const bool isSent = sink.write(frame, bytes, size);
    if (!isSent || !isWellFormed(bytes, size))
        return;
    // What is down when the processing goes on has an end then.
    const std::uint8_t channel = bytes[0] & 0x0F;
    if (midi::isNoteOn(bytes, size)) {
        m_strikes[channel][bytes[1]] = {true, ++m_lastStrike, 1, {{{bytes[1], 0}}}};
        m_output.noteBegan({m_lastStrike, channel, bytes[1], bytes[2]});
    } else if (midi::isNoteOff(bytes, size)) {
        m_strikes[channel][bytes[1]] = {};
        m_output.noteEnded(channel, bytes[1]);
    } else if (midi::isChannelEnd(bytes, size)) {
        for (std::uint8_t pitch = 0; pitch < pitchCount; ++pitch)
            m_output.noteEnded(channel, pitch);
    }
}

bool NoteProcessor::handleNote(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const int status = bytes[0] & 0xF0;
    const std::uint8_t channel = bytes[0] & 0x0F;
    if (status != midi::noteOn && status != midi::noteOff && status != midi::keyPressure)
        return false;
    const std::uint8_t key = bytes[1];
    const bool isKnown = m_strikes[channel][key].isDown;
    if (status == midi::keyPressure) {
        if (isKnown)
            keyPressure(frame, bytes, sink);
        return isKnown;
    }
    if (status == midi::noteOn && bytes[2] > 0) {
        press(frame, bytes, sink);
        return true;
    }
    if (isKnown)
        release(frame, channel, key, status == midi::noteOn ? midi::defaultReleaseVelocity : bytes[2], sink);
    // A note that another key has made is not ended by this one.
    return isKnown || !m_output.isSilent(channel, key);
}

void NoteProcessor::press(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const std::uint8_t channel = bytes[0] & 0x0F;
    const std::uint8_t key = bytes[1];
    m_strikes[channel][key].isDown = true;
    if (m_random.next() >= m_settings.chance)
        return;
    // A key may be struck again without a note-off.
    release(frame, channel, key, midi::defaultReleaseVelocity, sink);
    const ChordPitches chord(key, m_settings.harmony);
    const auto pitches = chord.pitches();
    const bool goesDown = pitches.size() > 1 && strumsDown();
    Strike& strike = m_strikes[channel][key];
    strike.isDown = true;
    strike.number = ++m_lastStrike;
    strike.count = pitches.size();
    for (std::size_t turn = 0; turn < pitches.size(); ++turn) {
        const std::uint8_t pitch = pitches[goesDown ? pitches.size() - 1 - turn : turn];
        const double late = static_cast<double>(m_random.next()) * m_settings.timing;
        const std::uint32_t delay = frames(static_cast<double>(turn) * m_settings.strum + late);
        strike.parts[turn] = {pitch, delay};
        schedule(frame, delay, Kind::begin, {strike.number, channel, pitch, shapedVelocity(bytes[2])}, sink);
    }
}

void NoteProcessor::release(std::uint32_t frame, std::uint8_t channel, std::uint8_t key,
                            std::uint8_t velocity, MidiSink& sink) {
    Strike& strike = m_strikes[channel][key];
    for (std::size_t turn = 0; turn < strike.count; ++turn) {
        const Strike::Part& part = strike.parts[turn];
        schedule(frame, part.delay, Kind::end, {strike.number, channel, part.pitch, velocity}, sink);
    }
    strike.count = 0;
    strike.isDown = false;
}

void NoteProcessor::keyPressure(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink) {
    const std::uint8_t channel = bytes[0] & 0x0F;
    const Strike& strike = m_strikes[channel][bytes[1]];
    for (std::size_t turn = 0; turn < strike.count; ++turn) {
        const std::uint8_t pitch = strike.parts[turn].pitch;
        if (!m_output.isSounding({strike.number, channel, pitch, 0}))
            continue;
        const std::uint8_t message[] = {bytes[0], pitch, bytes[2]};
        sink.write(frame, message, sizeof message);
    }
}

void NoteProcessor::schedule(std::uint32_t frame, std::uint32_t delay, Kind kind, const Note& note,
                             MidiSink& sink) {
    if (delay == 0)
        return play(frame, kind, note, sink);
    const bool isKept = m_schedule.add({m_blockStart + frame + delay, note, kind});
    if (!isKept && kind == Kind::end) {
        // Better short than for ever.
        m_schedule.drop(note);
        play(frame, kind, note, sink);
    }
}

void NoteProcessor::playUntil(std::uint64_t time, MidiSink& sink) {
    while (!m_schedule.isEmpty() && m_schedule.first().time <= time) {
        const auto entry = m_schedule.takeFirst();
        play(static_cast<std::uint32_t>(entry.time - m_blockStart), entry.kind, entry.note, sink);
    }
}

void NoteProcessor::play(std::uint32_t frame, Kind kind, const Note& note, MidiSink& sink) {
    if (kind == Kind::begin)
        m_output.begin(frame, note, sink);
    else
        m_output.end(frame, note, m_settings.hold, sink);
}

std::uint32_t NoteProcessor::frames(double seconds) const {
    return static_cast<std::uint32_t>(std::lround(seconds * m_sampleRate));
}

std::uint8_t NoteProcessor::shapedVelocity(std::uint8_t velocity) {
    const float swing = 2 * m_random.next() - 1;
    const float value =
        static_cast<float>(velocity) * m_settings.velocity * (1 + swing * m_settings.dynamics);
    return static_cast<std::uint8_t>(std::clamp(std::lround(value), 1L, 127L));
}

bool NoteProcessor::strumsDown() {
    if (m_settings.direction == StrumDirection::alternate)
        m_lastWentDown = !m_lastWentDown;
    else
        m_lastWentDown = m_settings.direction == StrumDirection::down;
    return m_lastWentDown;
}

} // namespace noteloft::plugin
