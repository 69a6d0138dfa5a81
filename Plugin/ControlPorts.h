#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace noteloft::plugin {

/// The ports by their index, which hosts keep in sessions: a new one goes to the end.
struct Ports {
    enum Index : std::uint32_t {
        midiIn,
        midiOut,
        transpose,
        velocity,
        chance,
        hold,
        enabled,
        page,
        root,
        scale,
        chord,
        inversion,
        strum,
        direction,
        dynamics,
        timing,
        count
    };
};

/// What a control port's number means.
enum class ControlUnit { count, index, onOff, semitones, percent, milliseconds };

/// A control port, as noteloft.ttl tells hosts of it.
struct ControlPort {
    Ports::Index index;
    const char* symbol;
    const char* name;
    ControlUnit unit;
    float lower;
    float upper;
    float initial;
    std::span<const char* const> labels = {}; ///< Of the values of an index, from 0 on; empty for others.

    /// The value that the port has when a host sends `value`, and hosts are free to send any: the nearest
    /// one, of a switch whether it is above zero, and the initial value for a number that is none.
    float nearest(float value) const;

    /// Whether all its values are integers.
    bool isWhole() const { return unit != ControlUnit::percent && unit != ControlUnit::milliseconds; }
};

/// All control ports.
std::span<const ControlPort> controlPorts();

/// `index` is that of a control port.
const ControlPort& controlPort(Ports::Index index);

} // namespace noteloft::plugin
