#pragma once

#include "Platform/Graphics/Image.h"
#include "Tidepool/Menus/Presentation.h"

#include <QString>

#include <vector>

namespace tidepool {

/// A type whose values can become menu items. The image may be null.
template <typename T>
concept MenuPresentable = requires(const T& value) {
    { Presentation<T>::title(value) } -> std::convertible_to<QString>;
    { Presentation<T>::tag(value) } -> std::convertible_to<int>;
    { Presentation<T>::image(value) } -> std::convertible_to<platform::Image>;
};

/// The menu item of a value whose type no longer matters.
struct AnyMenuPresentable {
    template <MenuPresentable T>
    AnyMenuPresentable(const T& value)
        : title(Presentation<T>::title(value)),
          tag(Presentation<T>::tag(value)),
          image(Presentation<T>::image(value)) {}

    QString title;
    int tag;
    platform::Image image;
};

/// All values of `T`, in their order.
template <MenuPresentable T>

requires CaseIterable<T> std::vector<AnyMenuPresentable> menuPresentables() {
    const auto& cases = Presentation<T>::allCases;
    return {std::ranges::begin(cases), std::ranges::end(cases)};
}

} // namespace tidepool
