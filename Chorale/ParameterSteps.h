#pragma once

#include <QElapsedTimer>

#include <memory>

namespace chorale {

class AudioParameter;

/// What a step with Shift is of a step without.
inline constexpr double fineStep = 0.1;

/// Whether the values are whole numbers: names, switches, counts, semitones and numbers of MIDI.
bool isWhole(const AudioParameter& parameter);

/// What one step of the keyboard or the wheel changes the latest value by: what is natural to its unit, such
/// as one percent or a semitone of a frequency, else about a hundredth of the range. Main thread.
double stepSize(const AudioParameter& parameter);

/// Where controls show a value in its range, from 0 to 1: spread evenly, frequencies by equal ratios. 0 in a
/// range of one value.
double placeInRange(const AudioParameter& parameter, double value);

/// The value that is shown at a place.
double valueAtPlace(const AudioParameter& parameter, double place);

/// Changes a parameter by steps and collects the parts of steps, whatever the host makes of the values
/// meanwhile. Main thread.
class ParameterSteps {
public:
    explicit ParameterSteps(std::shared_ptr<AudioParameter> parameter);

    /// One gesture to the host, if the value moves. It begins from and goes to what is shown with this many
    /// fractional digits; a whole step always shows.
    void step(double count, int decimalPlaces);

private:
    /// Where the next step begins.
    void begin(double count, double grid);

    const std::shared_ptr<AudioParameter> m_parameter;
    QElapsedTimer m_sinceLast;
    double m_reached = 0;    // what was set last
    double m_unfinished = 0; // the part of a step beyond it
};

} // namespace chorale
