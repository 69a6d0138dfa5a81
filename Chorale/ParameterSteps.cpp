#include "Chorale/ParameterSteps.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/ParameterGesture.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace chorale {

namespace {

using platform::AudioUnitParameterUnit;

/// Of a frequency, in octaves.
constexpr double semitone = 1.0 / 12;

/// For so many milliseconds what comes from the host is taken for an echo of the user's last value.
constexpr int echoTime = 500;

double span(const AudioParameter& parameter) {
    return static_cast<double>(parameter.valueRange().upperBound()) - parameter.valueRange().lowerBound();
}

bool isLogarithmic(const AudioParameter& parameter) {
    return parameter.units() == AudioUnitParameterUnit::hertz && parameter.valueRange().lowerBound() > 0 &&
           span(parameter) > 0;
}

/// 0 for a unit without one.
double naturalStep(AudioUnitParameterUnit units) {
    switch (units) {
    case AudioUnitParameterUnit::percent:
    case AudioUnitParameterUnit::milliseconds:
    case AudioUnitParameterUnit::cents:
    case AudioUnitParameterUnit::degrees:
    case AudioUnitParameterUnit::bpm:
        return 1;
    case AudioUnitParameterUnit::decibels:
        return 0.5;
    case AudioUnitParameterUnit::absoluteCents:
        return 100;
    default:
        return 0;
    }
}

/// 1, 2 or 5 of the decade of a hundredth of the range.
double roundStep(double span) {
    const double hundredth = span / 100;
    const double decade = std::pow(10, std::floor(std::log10(hundredth)));
    for (const int digit : {5, 2})
        if (hundredth >= digit * decade * (1 - 1e-6))
            return digit * decade;
    return decade;
}

/// The distance of values that are told apart.
double gridOf(const AudioParameter& parameter, int decimalPlaces) {
    if (isWhole(parameter))
        return 1;
    const double shown = std::pow(10, -decimalPlaces) * parameter.saveScaleFactor();
    const bool hidesSteps = !isLogarithmic(parameter) && shown > stepSize(parameter);
    return hidesSteps ? stepSize(parameter) * fineStep : shown;
}

double moved(const AudioParameter& parameter, double value, double count) {
    return isLogarithmic(parameter) ? value * std::exp2(count * semitone)
                                    : value + count * stepSize(parameter);
}

} // namespace

bool isWhole(const AudioParameter& parameter) {
    switch (parameter.units()) {
    case AudioUnitParameterUnit::indexed:
    case AudioUnitParameterUnit::boolean:
    case AudioUnitParameterUnit::sampleFrames:
    case AudioUnitParameterUnit::relativeSemiTones:
    case AudioUnitParameterUnit::midiNoteNumber:
    case AudioUnitParameterUnit::midiController:
        return true;
    default:
        return parameter.valueStrings() && !parameter.valueStrings()->isEmpty();
    }
}

double stepSize(const AudioParameter& parameter) {
    if (isWhole(parameter))
        return 1;
    if (isLogarithmic(parameter))
        return parameter.latestValue() * (std::exp2(semitone) - 1);
    // A natural step that is a leap in this range would be none.
    const double natural = naturalStep(parameter.units());
    const double range = span(parameter);
    return natural > 0 && natural <= range / 10 ? natural : range > 0 ? roundStep(range) : 1;
}

double placeInRange(const AudioParameter& parameter, double value) {
    const double lower = parameter.valueRange().lowerBound();
    const double range = span(parameter);
    if (range <= 0)
        return 0;
    return isLogarithmic(parameter) ? std::log(value / lower) / std::log((lower + range) / lower)
                                    : (value - lower) / range;
}

double valueAtPlace(const AudioParameter& parameter, double place) {
    const double lower = parameter.valueRange().lowerBound();
    const double upper = parameter.valueRange().upperBound();
    return isLogarithmic(parameter) ? lower * std::pow(upper / lower, place)
                                    : lower + place * (upper - lower);
}

ParameterSteps::ParameterSteps(std::shared_ptr<AudioParameter> parameter)
    : m_parameter(std::move(parameter)) {}

void ParameterSteps::begin(double count, double grid) {
    if (count * m_unfinished < 0)
        m_unfinished = 0; // a turn back
    const bool isLast = m_parameter->m_latestFromUi.load() == static_cast<float>(m_reached);
    if (!isLast || !m_sinceLast.isValid() || m_sinceLast.elapsed() > echoTime)
        m_reached = std::nearbyint(m_parameter->latestValue() / grid) * grid;
    m_sinceLast.start();
}

void ParameterSteps::step(double count, int decimalPlaces) {
    const double grid = gridOf(*m_parameter, decimalPlaces);
    begin(count, grid);
    constexpr double inexact = 1e-6;
    const double lower = m_parameter->valueRange().lowerBound();
    const double upper = m_parameter->valueRange().upperBound();
    const double exact = std::clamp(moved(*m_parameter, m_reached + m_unfinished, count), lower, upper);
    double next = (count > 0 ? std::floor(exact / grid + inexact) : std::ceil(exact / grid - inexact)) * grid;
    if (exact == lower || exact == upper)
        next = exact;
    else if (next == m_reached && std::abs(count) >= 1)
        next = std::clamp(m_reached + std::copysign(grid, count), lower, upper);
    m_unfinished = count * (exact - next) > 0 ? exact - next : 0;
    if (std::exchange(m_reached, next) != next)
        ParameterGesture(m_parameter).setValue(static_cast<float>(next));
}

} // namespace chorale
