#pragma once

#include "Tidepool/Menus/Presentation.h"

#include <QString>

namespace tidepool {

/// A type with a localised title whose values have localised names.
template <typename T>
concept DisplayNameLocalizable = requires(const T& value) {
    { Presentation<T>::typeTitle() } -> std::convertible_to<QString>;
    { Presentation<T>::displayName(value) } -> std::convertible_to<QString>;
};

} // namespace tidepool
