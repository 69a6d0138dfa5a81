#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// What the validating process sends to the one that started it: a byte for the kind, the payload's length in
/// four bytes, the least significant first, and the payload.
struct ValidationFrame {
    enum class Kind : char {
        line = 'L',    ///< A line of output, UTF-8.
        verdict = 'V', ///< One byte, an `AudioComponentValidationResult`.
        end = 'E',     ///< Nothing follows; without it the process ended too early.
    };

    Kind kind = Kind::end;
    std::string payload;

    bool operator==(const ValidationFrame&) const = default;

    std::string encoded() const;
};

/// Takes frames out of a stream of bytes that arrives in pieces.
class ValidationFrameReader {
public:
    /// Longer payloads are not accepted.
    static constexpr std::size_t maximumPayload = 65536;

    void append(std::string_view bytes) { m_bytes += bytes; }

    /// The next frame, if all of it has arrived. After something that is no frame there is none any more.
    std::optional<ValidationFrame> next();

private:
    std::string m_bytes;
};

} // namespace platform
