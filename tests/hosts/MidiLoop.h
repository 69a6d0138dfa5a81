#pragma once

#include "tests/Plugin/MidiRecorder.h"

#include <jack/jack.h>

#include <array>
#include <deque>
#include <mutex>
#include <optional>
#include <string>

/// A JACK client that sends MIDI to a host at exact frames, and records what comes back.
///
/// It counts the frames of its blocks, since the server's clock also counts time that the server missed.
/// Marks, control changes that every effect passes on, measure how long the way through the host is. All is
/// called by the main thread and returns at once.
class MidiLoop {
public:
    /// Look at `isOpen`: a server that is still starting takes no clients.
    explicit MidiLoop(const std::string& server);
    ~MidiLoop();
    MidiLoop(const MidiLoop&) = delete;
    MidiLoop& operator=(const MidiLoop&) = delete;

    bool isOpen() const { return m_client != nullptr; }

    /// Whether the host's ports are there and connected.
    bool connect(const std::string& host);

    /// Sends marks until one has come back: then the host works.
    bool hasBegun();

    /// How many frames the way through the host takes, once that has begun: whole blocks, unless the host
    /// delays.
    std::int64_t way();

    /// Sends the messages, whose frames count from now, and a mark one `tail` of frames after the last of
    /// them.
    void play(const std::vector<RecordedMessage>& messages, std::uint32_t tail = 4800);

    /// Whether the mark of the last `play` has come back.
    bool hasPlayed();

    /// What has come back since the first `play`, as if the way through the host took no time.
    std::vector<RecordedMessage> record();

    /// Whether every mark took the same time.
    bool isSteady();

private:
    using Frame = std::int64_t;

    struct Message {
        Frame frame;
        std::vector<std::uint8_t> bytes;
    };

    int process(jack_nframes_t count);
    void receive(jack_nframes_t count);
    void receiveMark(Frame frame, std::uint8_t number);
    void send(jack_nframes_t count);
    void scheduleMark(Frame frame);

    jack_client_t* m_client;
    jack_port_t* m_output = nullptr;
    jack_port_t* m_input = nullptr;

    std::mutex m_mutex; // guards what follows; the server waits for both threads
    Frame m_clock = 0;
    std::deque<Message> m_due;
    std::vector<Message> m_heard;
    std::uint8_t m_lastMark = 0;
    std::uint8_t m_lastHeardMark = 0;
    std::array<Frame, 128> m_markFrames{};
    bool m_calls = false;
    std::optional<Frame> m_way;
    std::optional<Frame> m_start;
    bool m_isSteady = true;
};
