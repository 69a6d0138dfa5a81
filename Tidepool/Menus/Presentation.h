#pragma once

#include <concepts>
#include <ranges>

namespace tidepool {

/// What a maker says about the values of a type that are shown as choices. A specialisation has whichever of
/// these static members its concepts ask for:
/// - `allCases`, a range of all values in their order: `CaseIterable`;
/// - `rawValue(value)`, which can be compared: `RawRepresentable`;
/// - `typeTitle()` and `displayName(value)`, localised texts: `DisplayNameLocalizable`;
/// - `title(value)`, `tag(value)` and `image(value)` of a menu item: `MenuPresentable`.
/// For an enumeration, `EnumPresentation` has most of them.
template <typename T>
struct Presentation;

template <typename T>
concept CaseIterable = requires {
    { *std::ranges::begin(Presentation<T>::allCases) } -> std::convertible_to<T>;
};

template <typename T>
concept RawRepresentable = requires(const T& value) {
    { Presentation<T>::rawValue(value) } -> std::equality_comparable;
};

/// What stands for a value of a `RawRepresentable` type.
template <RawRepresentable T>
using RawValue = std::remove_cvref_t<decltype(Presentation<T>::rawValue(std::declval<const T&>()))>;

} // namespace tidepool
