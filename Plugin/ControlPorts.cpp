#include "Plugin/ControlPorts.h"

#include "Plugin/Chord.h"
#include "Plugin/Scale.h"

#include <algorithm>
#include <cmath>

namespace noteloft::plugin {

namespace {

constexpr const char* pageNames[] = {"Scale", "Chord", "Feel"};
constexpr const char* directionNames[] = {"Up", "Down", "Alternate"};

constexpr ControlPort choice(Ports::Index index, const char* symbol, const char* name,
                             std::span<const char* const> labels) {
    return {index, symbol, name, ControlUnit::index, 0, static_cast<float>(labels.size() - 1), 0, labels};
}

constexpr ControlPort ports[] = {
    {Ports::transpose, "transpose", "Transpose", ControlUnit::semitones, -24, 24, 0},
    {Ports::velocity, "velocity", "Velocity", ControlUnit::percent, 0, 200, 100},
    {Ports::chance, "chance", "Chance", ControlUnit::percent, 0, 100, 100},
    {Ports::hold, "hold", "Hold", ControlUnit::onOff, 0, 1, 0},
    {Ports::enabled, "enabled", "Enabled", ControlUnit::onOff, 0, 1, 1},
    choice(Ports::page, "page", "Page", pageNames),
    choice(Ports::root, "root", "Root", noteNames),
    choice(Ports::scale, "scale", "Scale", scaleNames),
    choice(Ports::chord, "chord", "Chord", chordNames),
    {Ports::inversion, "inversion", "Inversion", ControlUnit::count, 0, 3, 0},
    {Ports::strum, "strum", "Strum", ControlUnit::milliseconds, 0, 120, 0},
    choice(Ports::direction, "direction", "Direction", directionNames),
    {Ports::dynamics, "dynamics", "Dynamics", ControlUnit::percent, 0, 100, 0},
    {Ports::timing, "timing", "Timing", ControlUnit::milliseconds, 0, 60, 0},
};

constexpr auto firstControl = Ports::transpose;
static_assert(std::size(ports) == Ports::count - firstControl);

} // namespace

float ControlPort::nearest(float value) const {
    if (std::isnan(value))
        return initial;
    if (unit == ControlUnit::onOff)
        return value > 0 ? upper : lower;
    const float inRange = std::clamp(value, lower, upper);
    return isWhole() ? std::round(inRange) : inRange;
}

std::span<const ControlPort> controlPorts() {
    return ports;
}

const ControlPort& controlPort(Ports::Index index) {
    return ports[index - firstControl];
}

} // namespace noteloft::plugin
