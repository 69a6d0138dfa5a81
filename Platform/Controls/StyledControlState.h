#pragma once

#include <QHashFunctions>
#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

namespace platform {

/// The set of flags that a control's look depends on. It keys every look-up of a style.
struct StyledControlState {
    std::int64_t rawValue = 0;

    static const StyledControlState defaultState;
    static const StyledControlState disabled;
    static const StyledControlState selected;
    static const StyledControlState highlighted;
    static const StyledControlState focused;
    static const StyledControlState on;
    static const StyledControlState mixed;
    static const StyledControlState invalid;

    /// The eight flags, in ascending order of their bits.
    static const std::array<StyledControlState, 8> all;

    /// True if every flag of `flags` is set.
    constexpr bool contains(StyledControlState flags) const {
        return (rawValue & flags.rawValue) == flags.rawValue;
    }

    /// True if at least one flag of `flags` is set.
    constexpr bool intersects(StyledControlState flags) const { return (rawValue & flags.rawValue) != 0; }

    constexpr bool isSubset(StyledControlState of) const { return of.contains(*this); }

    constexpr bool isEmpty() const { return rawValue == 0; }

    /// The same state with `flags` set or cleared.
    constexpr StyledControlState with(StyledControlState flags, bool isSet = true) const {
        return {isSet ? rawValue | flags.rawValue : rawValue & ~flags.rawValue};
    }

    /// The words of the set flags, joined with ", ".
    QString description() const;

    /// `defaultState`, set or not, and then each other flag that is set, in ascending order.
    std::vector<StyledControlState> members() const;

    friend constexpr bool operator==(StyledControlState, StyledControlState) = default;

    friend constexpr StyledControlState operator|(StyledControlState a, StyledControlState b) {
        return a.with(b);
    }
};

inline constexpr StyledControlState StyledControlState::defaultState{1};
inline constexpr StyledControlState StyledControlState::disabled{2};
inline constexpr StyledControlState StyledControlState::selected{4};
inline constexpr StyledControlState StyledControlState::highlighted{8};
inline constexpr StyledControlState StyledControlState::focused{16};
inline constexpr StyledControlState StyledControlState::on{32};
inline constexpr StyledControlState StyledControlState::mixed{64};
inline constexpr StyledControlState StyledControlState::invalid{128};
inline constexpr std::array<StyledControlState, 8> StyledControlState::all{
    defaultState, disabled, selected, highlighted, focused, on, mixed, invalid};

} // namespace platform

/// Of the description, so that states that read alike hash alike.
template <>
struct std::hash<platform::StyledControlState> {
    std::size_t operator()(platform::StyledControlState state) const noexcept {
        return qHash(state.description());
    }
};
