#pragma once

#include "Tidepool/Menus/DisplayNameLocalizable.h"

#include <QString>

#include <utility>
#include <variant>
#include <vector>

namespace tidepool {

/// How the values of `T` are arranged in a menu.
template <typename T>
class MenuStructure {
public:
    struct Item {
        T value;
    };

    struct Submenu {
        QString title;
        std::vector<MenuStructure> items;
    };

    /// A title line inside the menu.
    struct InlineTitle {
        QString title;
    };

    struct Separator {};

    using Kind = std::variant<Item, Submenu, InlineTitle, Separator>;

    static MenuStructure item(T value) { return Kind(Item{std::move(value)}); }

    static MenuStructure submenu(QString title, std::vector<MenuStructure> items) {
        return Kind(Submenu{std::move(title), std::move(items)});
    }

    static MenuStructure inlineTitle(QString title) { return Kind(InlineTitle{std::move(title)}); }

    static MenuStructure separator() { return Kind(Separator{}); }

    const Kind& kind() const { return m_kind; }

private:
    MenuStructure(Kind kind) : m_kind(std::move(kind)) {}

    Kind m_kind;
};

/// The arrangement that the type's presentation gives with `menuStructure()`, else all cases in their order
/// in a submenu with the type's title.
template <DisplayNameLocalizable T>

requires CaseIterable<T> && RawRepresentable<T> MenuStructure<T> menuStructure() {
    if constexpr (requires { Presentation<T>::menuStructure(); }) {
        return Presentation<T>::menuStructure();
    } else {
        std::vector<MenuStructure<T>> items;
        for (const T& value : Presentation<T>::allCases)
            items.push_back(MenuStructure<T>::item(value));
        return MenuStructure<T>::submenu(Presentation<T>::typeTitle(), std::move(items));
    }
}

} // namespace tidepool
