#pragma once

#include "Platform/Graphics/Image.h"

#include <QString>

#include <any>
#include <concepts>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace tidepool {

/// A value of any type that can be compared, or none.
class PopupObject {
public:
    PopupObject() = default;

    template <std::equality_comparable T>

    requires(!std::same_as<T, PopupObject>) PopupObject(T value)
        : m_value(std::move(value)), m_equals([](const std::any& a, const std::any& b) {
              const T* const other = std::any_cast<T>(&b);
              return other != nullptr && *std::any_cast<T>(&a) == *other;
          }) {}

    bool isPresent() const { return m_value.has_value(); }

    /// Empty if there is none.
    const std::any& value() const { return m_value; }

    /// Null if there is none, or one of another type.
    template <typename T>
    const T* as() const {
        return std::any_cast<T>(&m_value);
    }

    friend bool operator==(const PopupObject& a, const PopupObject& b) {
        return a.isPresent() ? a.m_equals(a.m_value, b.m_value) : !b.isPresent();
    }

private:
    std::any m_value;
    bool (*m_equals)(const std::any& a, const std::any& b) = nullptr;
};

/// Describes an item of a pop-up button.
struct PopupItem {
    /// What choosing the item selects; absent for nothing.
    PopupObject object{};
    QString title{};
    /// May be null.
    platform::Image image{};
    /// A line between other items, which has nothing else.
    bool isDivider = false;
    bool isEnabled = true;
    /// An item with a submenu only opens that.
    std::optional<std::vector<PopupItem>> subMenu{};

    static PopupItem divider() { return {.isDivider = true}; }
};

} // namespace tidepool
