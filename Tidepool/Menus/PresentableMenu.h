#pragma once

#include "Platform/Controls/ImageIcon.h"
#include "Platform/Controls/Menu.h"
#include "Tidepool/Menus/MenuPresentable.h"
#include "Tidepool/Menus/MenuStructure.h"

#include <memory>
#include <utility>
#include <vector>

namespace tidepool {

/// A type whose values a user can choose from a menu.
template <typename T>
concept MenuChoice =
    DisplayNameLocalizable<T> && MenuPresentable<T> && RawRepresentable<T> && CaseIterable<T>;

template <MenuChoice T>
void addItems(platform::Menu& menu, const std::vector<MenuStructure<T>>& items);

/// Builds the platform's item of each kind of structure; an item represents its value.
template <MenuChoice T>
struct ItemOfStructure {
    std::unique_ptr<platform::MenuItem> operator()(const typename MenuStructure<T>::Item& structure) const {
        const T& value = structure.value;
        auto item = std::make_unique<platform::MenuItem>(Presentation<T>::title(value));
        item->tag = Presentation<T>::tag(value);
        item->setIcon(platform::imageIcon(Presentation<T>::image(value)));
        item->representedObject = value;
        return item;
    }

    std::unique_ptr<platform::MenuItem>
    operator()(const typename MenuStructure<T>::Submenu& structure) const {
        auto item = std::make_unique<platform::MenuItem>(structure.title);
        item->setSubmenu(std::make_unique<platform::Menu>());
        addItems(*item->submenu(), structure.items);
        return item;
    }

    std::unique_ptr<platform::MenuItem>
    operator()(const typename MenuStructure<T>::InlineTitle& structure) const {
        return platform::MenuItem::sectionHeader(structure.title);
    }

    std::unique_ptr<platform::MenuItem> operator()(const typename MenuStructure<T>::Separator&) const {
        return platform::MenuItem::separator();
    }
};

/// Appends what `items` describe.
template <MenuChoice T>
void addItems(platform::Menu& menu, const std::vector<MenuStructure<T>>& items) {
    for (const MenuStructure<T>& item : items)
        menu.addItem(std::visit(ItemOfStructure<T>(), item.kind()));
}

/// Appends all choices of a type; those of a submenu at the top go into the menu itself.
template <MenuChoice T>
void addChoices(platform::Menu& menu) {
    const MenuStructure<T> structure = menuStructure<T>();
    if (const auto* const all = std::get_if<typename MenuStructure<T>::Submenu>(&structure.kind()))
        addItems(menu, all->items);
    else
        addItems<T>(menu, {structure});
}

} // namespace tidepool
