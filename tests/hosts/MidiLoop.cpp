#include "tests/hosts/MidiLoop.h"

#include <jack/midiport.h>

#include <algorithm>
#include <cstring>

namespace {

// The last channel and a controller without a meaning, so that no case uses them.
constexpr std::uint8_t markStatus = 0xBF;
constexpr std::uint8_t markController = 119;

bool isMark(const jack_midi_event_t& event) {
    return event.size == 3 && event.buffer[0] == markStatus && event.buffer[1] == markController;
}

jack_client_t* open(const std::string& server) {
    // Until the server answers, each try would complain.
    jack_set_error_function([](const char*) {});
    jack_set_info_function([](const char*) {});
    constexpr auto options = static_cast<jack_options_t>(JackNoStartServer | JackServerName);
    return jack_client_open("loop", options, nullptr, server.c_str());
}

} // namespace

MidiLoop::MidiLoop(const std::string& server) : m_client(open(server)) {
    if (!isOpen())
        return;
    m_output = jack_port_register(m_client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    m_input = jack_port_register(m_client, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    jack_set_process_callback(
        m_client,
        [](jack_nframes_t count, void* loop) { return static_cast<MidiLoop*>(loop)->process(count); }, this);
    jack_activate(m_client);
}

MidiLoop::~MidiLoop() {
    if (isOpen())
        jack_client_close(m_client);
}

bool MidiLoop::connect(const std::string& host) {
    const auto isDone = [](int result) { return result == 0 || result == EEXIST; };
    return isDone(jack_connect(m_client, jack_port_name(m_output), (host + ":in").c_str())) &&
           isDone(jack_connect(m_client, (host + ":out").c_str(), jack_port_name(m_input)));
}

bool MidiLoop::hasBegun() {
    const std::scoped_lock lock(m_mutex);
    m_calls = !m_way;
    return !m_calls;
}

std::int64_t MidiLoop::way() {
    const std::scoped_lock lock(m_mutex);
    return m_way.value_or(0);
}

void MidiLoop::play(const std::vector<RecordedMessage>& messages, std::uint32_t tail) {
    const std::scoped_lock lock(m_mutex);
    if (!m_start)
        m_start = m_clock;
    Frame last = m_clock;
    for (const RecordedMessage& message : messages) {
        last = m_clock + message.frame;
        m_due.push_back({last, message.bytes});
    }
    scheduleMark(last + tail);
}

bool MidiLoop::hasPlayed() {
    const std::scoped_lock lock(m_mutex);
    return m_lastHeardMark == m_lastMark;
}

std::vector<RecordedMessage> MidiLoop::record() {
    const std::scoped_lock lock(m_mutex);
    const Frame start = m_start.value_or(0) + m_way.value_or(0);
    std::vector<RecordedMessage> messages;
    messages.reserve(m_heard.size());
    for (const Message& message : m_heard)
        messages.push_back({static_cast<std::uint32_t>(message.frame - start), message.bytes});
    return messages;
}

bool MidiLoop::isSteady() {
    const std::scoped_lock lock(m_mutex);
    return m_isSteady;
}

int MidiLoop::process(jack_nframes_t count) {
    const std::scoped_lock lock(m_mutex);
    receive(count);
    if (m_calls)
        scheduleMark(m_clock);
    send(count);
    m_clock += count;
    return 0;
}

void MidiLoop::receive(jack_nframes_t count) {
    void* const buffer = jack_port_get_buffer(m_input, count);
    jack_midi_event_t event;
    for (std::uint32_t i = 0; jack_midi_event_get(&event, buffer, i) == 0; ++i) {
        const Frame frame = m_clock + event.time;
        if (isMark(event))
            receiveMark(frame, event.buffer[2]);
        else
            m_heard.push_back({frame, {event.buffer, event.buffer + event.size}});
    }
}

void MidiLoop::receiveMark(Frame frame, std::uint8_t number) {
    const Frame way = frame - m_markFrames[number];
    if (!m_way)
        m_way = way;
    m_isSteady = m_isSteady && way == *m_way;
    m_lastHeardMark = number;
}

void MidiLoop::send(jack_nframes_t count) {
    void* const buffer = jack_port_get_buffer(m_output, count);
    jack_midi_clear_buffer(buffer);
    for (; !m_due.empty() && m_due.front().frame < m_clock + count; m_due.pop_front()) {
        const auto& [frame, bytes] = m_due.front();
        const auto offset = static_cast<jack_nframes_t>(std::max<Frame>(frame - m_clock, 0));
        m_isSteady &= jack_midi_event_write(buffer, offset, bytes.data(), bytes.size()) == 0;
    }
}

void MidiLoop::scheduleMark(Frame frame) {
    m_lastMark = (m_lastMark + 1) % m_markFrames.size();
    m_markFrames[m_lastMark] = frame;
    m_due.push_back({frame, {markStatus, markController, m_lastMark}});
}
