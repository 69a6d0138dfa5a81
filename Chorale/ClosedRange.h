#pragma once

#include "Platform/Core/FatalError.h"

namespace chorale {

/// All values from a lower to an upper bound, both included.
template <typename T>
class ClosedRange {
public:
    /// Stops the program if the lower bound is above the upper one, or one is not a number.
    constexpr ClosedRange(T lower, T upper) : m_lower(lower), m_upper(upper) {
        if (!(lower <= upper))
            platform::fatalError("A range needs a lower bound that is not above its upper bound");
    }

    constexpr T lowerBound() const { return m_lower; }

    constexpr T upperBound() const { return m_upper; }

    constexpr bool operator==(const ClosedRange&) const = default;

private:
    T m_lower;
    T m_upper;
};

/// The nearest value in `range`; its lower bound for what is not a number.
template <typename T>
constexpr T clamped(T value, const ClosedRange<T>& range) {
    const T raised = value > range.lowerBound() ? value : range.lowerBound();
    return raised < range.upperBound() ? raised : range.upperBound();
}

} // namespace chorale
