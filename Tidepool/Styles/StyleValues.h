#pragma once

#include "Tidepool/Styles/StyledControlState.h"

#include <QMarginsF>

namespace tidepool {

/// Insets in the order in which styles write them.
constexpr QMarginsF insets(double top, double left, double bottom, double right) {
    return {left, top, right, bottom};
}

// Short names for the states that the tables of images are written in.
inline constexpr auto normal = StyledControlState::defaultState;
inline constexpr auto highlighted = StyledControlState::highlighted;
inline constexpr auto selected = StyledControlState::selected;
inline constexpr auto on = StyledControlState::on;
inline constexpr auto mixed = StyledControlState::mixed;
inline constexpr auto focused = StyledControlState::focused;
inline constexpr auto invalid = StyledControlState::invalid;

} // namespace tidepool
