#include "Platform/AudioUnits/Validator/ResultsChannel.h"

#include "Platform/AudioUnits/ValidationFrame.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace platform {

ResultsChannel::ResultsChannel() : m_descriptor(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1)) {
    const int silence = open("/dev/null", O_WRONLY | O_CLOEXEC);
    if (m_descriptor < 0 || silence < 0 || dup2(silence, STDOUT_FILENO) < 0)
        std::abort();
    close(silence);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

ResultsChannel::~ResultsChannel() {
    close(m_descriptor);
}

void ResultsChannel::line(const std::string& text) const {
    const std::string payload = text.substr(0, ValidationFrameReader::maximumPayload);
    send(ValidationFrame{ValidationFrame::Kind::line, payload}.encoded());
}

void ResultsChannel::end(AudioComponentValidationResult verdict) const {
    send(ValidationFrame{ValidationFrame::Kind::verdict, std::string(1, static_cast<char>(verdict))}
             .encoded() +
         ValidationFrame{ValidationFrame::Kind::end, {}}.encoded());
}

void ResultsChannel::send(const std::string& bytes) const {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = write(m_descriptor, bytes.data() + sent, bytes.size() - sent);
        if (count < 0 && errno != EINTR)
            std::abort(); // Nobody is left to hear the result.
        sent += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
}

} // namespace platform
