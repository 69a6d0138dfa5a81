#include "Tidepool/Menus/TPMenuItem.h"

#include "Platform/Controls/ImageIcon.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Controls/ServicesMenu.h"

#include <utility>

namespace tidepool {

using platform::Menu;
using platform::MenuItem;

namespace {

/// The submenu that the kind of an item brings; null for none.
struct SubmenuOfKind {
    std::unique_ptr<Menu> operator()(const TPMenuType::DocumentTemplates& kind) const {
        return filledBy(kind.delegate);
    }

    std::unique_ptr<Menu> operator()(const TPMenuType::RecentDocuments& kind) const {
        return filledBy(kind.delegate);
    }

    std::unique_ptr<Menu> operator()(const TPMenuType::Services&) const {
        auto menu = std::make_unique<Menu>();
        platform::setServicesMenu(menu.get());
        return menu;
    }

    std::unique_ptr<Menu> operator()(const auto&) const { return nullptr; }

private:
    static std::unique_ptr<Menu> filledBy(const std::shared_ptr<platform::MenuDelegate>& delegate) {
        auto menu = std::make_unique<Menu>();
        menu->setDelegate(delegate.get());
        QObject::connect(menu.get(), &QObject::destroyed, [delegate] {}); // as long as it fills the menu
        return menu;
    }
};

std::unique_ptr<Menu> menuOf(const std::vector<TPMenuItem>& items) {
    auto menu = std::make_unique<Menu>();
    for (const TPMenuItem& item : items)
        menu->addItem(item.asMenuItem());
    return menu;
}

std::unique_ptr<Menu> menuOf(const std::vector<AnyMenuPresentable>& values,
                             std::optional<platform::Selector> action) {
    auto menu = std::make_unique<Menu>();
    for (const AnyMenuPresentable& value : values) {
        MenuItem& item = menu->addItem(value.title, action);
        item.tag = value.tag;
        item.setIcon(platform::imageIcon(value.image));
    }
    return menu;
}

/// `menu`. A services menu whose place it takes stays the application's, until the item goes.
std::unique_ptr<Menu> inPlaceOf(std::unique_ptr<Menu> former, std::unique_ptr<Menu> menu) {
    if (former && former.get() == platform::servicesMenu()) {
        former->setParent(menu.get(), former->windowFlags()); // a window of its own all the same
        former.release();                                     // NOLINT(bugprone-unused-return-value)
    }
    return menu;
}

} // namespace

TPMenuItem TPMenuItem::separator() {
    return {.menuType = TPMenuType::separator()};
}

std::unique_ptr<MenuItem> TPMenuItem::asMenuItem() const {
    if (const auto* const header = std::get_if<TPMenuType::SectionHeader>(&menuType.kind()))
        return MenuItem::sectionHeader(header->title);
    if (std::holds_alternative<TPMenuType::Separator>(menuType.kind()))
        return MenuItem::separator();
    auto item = std::make_unique<MenuItem>(title.value_or(QString()), action, shortcutKey.value_or(QString()),
                                           modifiers);
    auto menu = std::visit(SubmenuOfKind(), menuType.kind());
    if (submenu)
        menu = inPlaceOf(std::move(menu), menuOf(*submenu));
    else if (submenuEnum)
        menu = inPlaceOf(std::move(menu), menuOf(*submenuEnum, submenuEmumSelector));
    if (menu)
        item->setSubmenu(std::move(menu));
    item->target = target;
    item->tag = tag.value_or(item->tag);
    item->representedObject = representedObject;
    return item;
}

std::unique_ptr<Menu> asMenu(const std::vector<TPMenuItem>& items) {
    auto menu = menuOf(items);
    menu->setAutoenablesItems(false);
    return menu;
}

} // namespace tidepool
