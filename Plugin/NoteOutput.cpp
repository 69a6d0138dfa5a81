#include "Plugin/NoteOutput.h"

#include "Plugin/MidiStatus.h"

#include <algorithm>
#include <utility>

namespace noteloft::plugin {

namespace {

bool areOfOnePitch(const Note& one, const Note& other) {
    return one.channel == other.channel && one.pitch == other.pitch;
}

bool isSame(const Note& one, const Note& other) {
    return one.strike == other.strike && areOfOnePitch(one, other);
}

} // namespace

bool NoteOutput::sendEnd(std::uint32_t frame, int channel, int pitch, std::uint8_t velocity, MidiSink& sink) {
    const std::uint8_t message[] = {static_cast<std::uint8_t>(midi::noteOff | channel),
                                    static_cast<std::uint8_t>(pitch), velocity};
    const bool sent = sink.write(frame, message, sizeof message);
    setState(channel, pitch, sent ? State::silent : State::due);
    return sent;
}

void NoteOutput::setState(int channel, int pitch, State state) {
    State& now = m_states[channel][pitch];
    const auto waits = [](State one) { return one == State::held || one == State::due ? 1 : 0; };
    m_waitingCount += waits(state) - waits(now);
    now = state;
}

bool NoteOutput::isAnyDown(const Note& note) const {
    return std::any_of(m_down.begin(), m_down.begin() + m_downCount,
                       [&](const Note& down) { return areOfOnePitch(down, note); });
}

template <typename Predicate>
bool NoteOutput::forgetIf(Predicate matches) {
    const auto begin = m_down.begin();
    const auto kept = std::remove_if(begin, begin + m_downCount, matches);
    const auto before = std::exchange(m_downCount, static_cast<std::size_t>(kept - begin));
    return m_downCount < before;
}

void NoteOutput::begin(std::uint32_t frame, const Note& note, MidiSink& sink) {
    if (m_downCount == capacity)
        return;
    if (state(note) != State::silent &&
        !sendEnd(frame, note.channel, note.pitch, midi::defaultReleaseVelocity, sink))
        return;
    const std::uint8_t message[] = {static_cast<std::uint8_t>(midi::noteOn | note.channel), note.pitch,
                                    note.velocity};
    if (!sink.write(frame, message, sizeof message))
        return;
    setState(note.channel, note.pitch, State::sounding);
    m_down[m_downCount++] = note;
}

void NoteOutput::noteBegan(const Note& note) {
    noteEnded(note.channel, note.pitch);
    if (m_downCount == capacity)
        return;
    setState(note.channel, note.pitch, State::sounding);
    m_down[m_downCount++] = note;
}

void NoteOutput::noteEnded(std::uint8_t channel, std::uint8_t pitch) {
    forgetIf([=](const Note& down) { return down.channel == channel && down.pitch == pitch; });
    setState(channel, pitch, State::silent);
}

bool NoteOutput::isSounding(const Note& note) const {
    return state(note) == State::sounding &&
           std::any_of(m_down.begin(), m_down.begin() + m_downCount,
                       [&](const Note& down) { return isSame(down, note); });
}

void NoteOutput::end(std::uint32_t frame, const Note& note, bool holds, MidiSink& sink) {
    const bool wasDown = forgetIf([&](const Note& down) { return isSame(down, note); });
    if (!wasDown || state(note) != State::sounding || isAnyDown(note))
        return;
    if (holds)
        setState(note.channel, note.pitch, State::held);
    else
        sendEnd(frame, note.channel, note.pitch, note.velocity, sink);
}

template <typename Predicate>
void NoteOutput::endIf(std::uint32_t frame, MidiSink& sink, Predicate matches) {
    for (int channel = 0; channel < channelCount; ++channel)
        for (int pitch = 0; pitch < pitchCount; ++pitch) {
            const State state = m_states[channel][pitch];
            if (state != State::silent && matches(channel, state))
                sendEnd(frame, channel, pitch, midi::defaultReleaseVelocity, sink);
        }
}

void NoteOutput::endHeld(std::uint32_t frame, MidiSink& sink) {
    if (m_waitingCount > 0)
        endIf(frame, sink, [](int, State state) { return state == State::held; });
}

void NoteOutput::endChannel(std::uint32_t frame, std::uint8_t channel, MidiSink& sink) {
    forgetIf([=](const Note& down) { return down.channel == channel; });
    endIf(frame, sink, [=](int index, State) { return index == channel; });
}

void NoteOutput::endAll(std::uint32_t frame, MidiSink& sink) {
    m_downCount = 0;
    endIf(frame, sink, [](int, State) { return true; });
}

void NoteOutput::sendDue(std::uint32_t frame, MidiSink& sink) {
    if (m_waitingCount > 0)
        endIf(frame, sink, [](int, State state) { return state == State::due; });
}

} // namespace noteloft::plugin
