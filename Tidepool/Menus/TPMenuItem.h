#pragma once

#include "Platform/Core/Action.h"
#include "Tidepool/Menus/MenuPresentable.h"
#include "Tidepool/Menus/TPMenuType.h"

#include <QObject>
#include <QPointer>
#include <QString>

#include <any>
#include <memory>
#include <optional>
#include <vector>

namespace platform {
class Menu;
class MenuItem;
} // namespace platform

namespace tidepool {

/// Describes a menu item. Main thread.
struct TPMenuItem {
    std::optional<QString> title{};
    std::optional<platform::Selector> action{};
    /// Not owned; null, or gone, for the first responder that answers.
    QPointer<QObject> target{};
    /// As `platform::keyEquivalent` takes it.
    std::optional<QString> shortcutKey{};
    Qt::KeyboardModifiers modifiers{};
    TPMenuType menuType = TPMenuType::standard();
    /// Replaces the submenu that `menuType` may have.
    std::optional<std::vector<TPMenuItem>> submenu{};
    /// Makes the submenu if `submenu` is absent.
    std::optional<std::vector<AnyMenuPresentable>> submenuEnum{};
    /// The action of the items of `submenuEnum`, which have no target.
    std::optional<platform::Selector> submenuEmumSelector{};
    std::optional<int> tag{};
    /// Without a value: none.
    std::any representedObject{};

    static TPMenuItem separator();

    /// A new item. A section header has nothing but its title, a separator nothing at all.
    std::unique_ptr<platform::MenuItem> asMenuItem() const;
};

/// A new menu of these items, which are enabled as they say, whoever answers to them.
std::unique_ptr<platform::Menu> asMenu(const std::vector<TPMenuItem>& items);

} // namespace tidepool
