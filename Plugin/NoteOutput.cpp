#include "Plugin/NoteOutput.h"

#include "Plugin/MidiStatus.h"

namespace noteloft::plugin {

bool NoteOutput::sendEnd(std::uint32_t frame, int channel, int pitch, std::uint8_t velocity, MidiSink& sink) {
    const std::uint8_t message[] = {static_cast<std::uint8_t>(midi::noteOff | channel),
                                    static_cast<std::uint8_t>(pitch), velocity};
    const bool sent = sink.write(frame, message, sizeof message);
    setState(m_voices[channel][pitch], sent ? State::silent : State::due);
    return sent;
}

void NoteOutput::setState(Voice& voice, State state) {
    const auto waits = [](State one) { return one == State::held || one == State::due ? 1 : 0; };
    m_waitingCount += waits(state) - waits(voice.state);
    voice.state = state;
}

void NoteOutput::begin(std::uint32_t frame, const Note& note, MidiSink& sink) {
    Voice& voice = this->voice(note);
    if (voice.state != State::silent &&
        !sendEnd(frame, note.channel, note.pitch, midi::defaultReleaseVelocity, sink))
        return;
    const std::uint8_t message[] = {static_cast<std::uint8_t>(midi::noteOn | note.channel), note.pitch,
                                    note.velocity};
    if (sink.write(frame, message, sizeof message))
        voice = {State::sounding, note.strike};
}

bool NoteOutput::isSounding(const Note& note) const {
    const Voice& voice = m_voices[note.channel][note.pitch];
    return voice.state == State::sounding && voice.strike == note.strike;
}

void NoteOutput::end(std::uint32_t frame, const Note& note, bool holds, MidiSink& sink) {
    if (!isSounding(note))
        return;
    if (holds)
        setState(voice(note), State::held);
    else
        sendEnd(frame, note.channel, note.pitch, note.velocity, sink);
}

template <typename Predicate>
void NoteOutput::endIf(std::uint32_t frame, MidiSink& sink, Predicate matches) {
    for (int channel = 0; channel < channelCount; ++channel)
        for (int pitch = 0; pitch < pitchCount; ++pitch) {
            const State state = m_voices[channel][pitch].state;
            if (state != State::silent && matches(channel, state))
                sendEnd(frame, channel, pitch, midi::defaultReleaseVelocity, sink);
        }
}

void NoteOutput::endHeld(std::uint32_t frame, MidiSink& sink) {
    if (m_waitingCount > 0)
        endIf(frame, sink, [](int, State state) { return state == State::held; });
}

void NoteOutput::endChannel(std::uint32_t frame, std::uint8_t channel, MidiSink& sink) {
    endIf(frame, sink, [=](int index, State) { return index == channel; });
}

void NoteOutput::endAll(std::uint32_t frame, MidiSink& sink) {
    endIf(frame, sink, [](int, State) { return true; });
}

void NoteOutput::sendDue(std::uint32_t frame, MidiSink& sink) {
    if (m_waitingCount > 0)
        endIf(frame, sink, [](int, State state) { return state == State::due; });
}

} // namespace noteloft::plugin
