#pragma once

#include "Chorale/AudioParameter.h"

#include <memory>

namespace chorale {

/// The user holds a parameter: a drag, a key that is held, a turn of the wheel. The host sees one touch when
/// it begins and one release when it ends, however it ends, and what the host sends meanwhile is not shown.
/// Gestures on the same parameter nest: the host sees the outermost only. Main thread.
class ParameterGesture {
public:
    explicit ParameterGesture(std::shared_ptr<AudioParameter> parameter);

    /// Ends the gesture if that has not happened.
    ~ParameterGesture();

    ParameterGesture(const ParameterGesture&) = delete;
    ParameterGesture& operator=(const ParameterGesture&) = delete;

    /// Ignored after the end.
    void setValue(float value);

    /// Lets go. More than once is harmless.
    void end();

    /// Goes back to the value at the beginning of this gesture, then ends it.
    void cancel();

private:
    std::shared_ptr<AudioParameter> m_parameter; // null after the end
    const float m_valueBefore;
};

} // namespace chorale
