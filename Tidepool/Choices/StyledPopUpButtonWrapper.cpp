#include "Tidepool/Choices/StyledPopUpButtonWrapper.h"

#include "Platform/Controls/ImageIcon.h"

#include <algorithm>
#include <utility>

namespace tidepool {

using platform::Menu;
using platform::MenuItem;

namespace {

/// An item that knows how to compare what it represents.
class ComparableItem : public MenuItem {
public:
    explicit ComparableItem(const PopupItem& described)
        : MenuItem(described.title, PopUpButtonCoordinator::action), object(described.object) {
        representedObject = object.value();
    }

    const PopupObject object;
};

std::unique_ptr<Menu> menuOf(const std::vector<PopupItem>& items, QObject& target);

std::unique_ptr<MenuItem> itemOf(const PopupItem& described, QObject& target) {
    if (described.isDivider)
        return MenuItem::separator();
    auto item = std::make_unique<ComparableItem>(described);
    item->target = &target;
    item->setEnabled(described.isEnabled);
    item->setIcon(platform::imageIcon(described.image));
    if (described.subMenu)
        item->setSubmenu(menuOf(*described.subMenu, target));
    return item;
}

std::unique_ptr<Menu> menuOf(const std::vector<PopupItem>& items, QObject& target) {
    auto menu = std::make_unique<Menu>();
    menu->setAutoenablesItems(false); // the descriptions tell
    for (const PopupItem& item : items)
        menu->addItem(itemOf(item, target));
    return menu;
}

PopupObject objectOf(const MenuItem& item) {
    const auto* const comparable = dynamic_cast<const ComparableItem*>(&item);
    return comparable != nullptr ? comparable->object : PopupObject();
}

} // namespace

PopUpButtonCoordinator::PopUpButtonCoordinator(platform::Binding<PopupObject> selection,
                                               StyledPopUpButton& button)
    : m_selection(std::move(selection)), m_button(button) {}

void PopUpButtonCoordinator::selectItem(QObject* sender) {
    const auto* item = qobject_cast<MenuItem*>(sender);
    if (item == nullptr)
        item = m_button.selectedItem();
    const QPointer<PopUpButtonCoordinator> self(this);
    m_selection.set(item != nullptr ? objectOf(*item) : PopupObject());
    if (self)
        showSelection(); // its owner may have taken something else
}

void PopUpButtonCoordinator::showSelection() {
    const PopupObject selection = m_selection.get();
    const auto items = platform::flattenedItems(*m_button.menu());
    const auto isSelected = [&](const MenuItem* item) {
        return !item->isSeparator() && item->submenu() == nullptr && objectOf(*item) == selection;
    };
    const auto found = std::ranges::find_if(items, isSelected);
    MenuItem* const item = found != items.end() ? *found : nullptr;
    if (item != m_button.selectedItem())
        m_button.selectItem(item);
}

StyledPopUpButtonWrapper::StyledPopUpButtonWrapper(std::vector<PopupItem> items,
                                                   platform::Binding<PopupObject> selection,
                                                   std::optional<QString> label,
                                                   std::optional<double> fixedWidth, QWidget* parent)
    : StyledPopUpButton(false, parent), m_coordinator(std::move(selection), *this) {
    // Whoever steps through the items sends the button's action in place of theirs.
    setAction(PopUpButtonCoordinator::action, &m_coordinator);
    setLabel(std::move(label));
    setFixedWidth(fixedWidth);
    setItems(std::move(items));
}

void StyledPopUpButtonWrapper::setItems(std::vector<PopupItem> items) {
    m_items = std::move(items);
    setMenu(menuOf(m_items, m_coordinator));
    updateSelection();
}

void StyledPopUpButtonWrapper::showEvent(QShowEvent* event) {
    StyledPopUpButton::showEvent(event);
    updateSelection();
}

} // namespace tidepool
