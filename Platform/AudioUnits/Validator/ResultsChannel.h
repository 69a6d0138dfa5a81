#pragma once

#include "Platform/AudioUnits/AudioComponentValidationResult.h"

#include <string>

namespace platform {

/// The way back to the process that started this one. That process reads our standard output; the channel
/// takes it over, and what a plug-in prints from then on is thrown away.
class ResultsChannel {
public:
    /// Also makes this process end together with the one that started it.
    ResultsChannel();
    ~ResultsChannel();
    ResultsChannel(const ResultsChannel&) = delete;
    ResultsChannel& operator=(const ResultsChannel&) = delete;

    /// Sent at once, so that nothing is lost when the plug-in ends the process.
    void line(const std::string& text) const;

    /// The last thing to be sent.
    void end(AudioComponentValidationResult verdict) const;

private:
    void send(const std::string& bytes) const;

    int m_descriptor;
};

} // namespace platform
