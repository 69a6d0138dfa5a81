#pragma once

#include "Platform/Controls/PopUpButton.h"
#include "Platform/Publishing/Publisher.h"
#include "Tidepool/Events/ReceiveOnMainThread.h"
#include "Tidepool/Menus/PresentableMenu.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

/// Pop-up buttons that choose a value of a type. Main thread.
namespace tidepool {

/// The raw value of the value of `T` that `item` represents: its represented object is that value, or the raw
/// value itself. Absent if it is neither.
template <RawRepresentable T>
std::optional<RawValue<T>> rawValue(const platform::MenuItem& item) {
    if (const auto* const value = std::any_cast<T>(&item.representedObject))
        return Presentation<T>::rawValue(*value);
    if (const auto* const raw = std::any_cast<RawValue<T>>(&item.representedObject))
        return *raw;
    return std::nullopt;
}

/// Selects the first of `items` that represents a value with the raw value of `value`; none changes nothing.
template <RawRepresentable T>
void selectItem(platform::PopUpButton& button, const QList<platform::MenuItem*>& items, const T& value) {
    const auto matches = [&](const platform::MenuItem* item) {
        return rawValue<T>(*item) == Presentation<T>::rawValue(value);
    };
    if (const auto found = std::ranges::find_if(items, matches); found != items.end())
        button.selectItem(*found);
}

/// Selects the first item of the menu itself, rather than of a submenu, that represents a value with this raw
/// value; none changes nothing.
template <RawRepresentable T>
void selectItem(platform::PopUpButton& button, const T& matchingRawRepresentableValue) {
    selectItem(button, button.itemArray(), matchingRawRepresentableValue);
}

/// The value that the selected item represents; absent if nothing is selected, or something else.
template <RawRepresentable T>

requires CaseIterable<T> std::optional<T> selectedRawRepresentableValue(const platform::PopUpButton& button) {
    const auto raw = button.selectedItem() != nullptr ? rawValue<T>(*button.selectedItem()) : std::nullopt;
    for (const T& value : Presentation<T>::allCases)
        if (raw == Presentation<T>::rawValue(value))
            return value;
    return std::nullopt;
}

/// Replaces the items of `button` by the choices of the value's type and selects the value, wherever its
/// maker has arranged it. The type's title
/// names the button for assistive technology, unless it has a name.
template <MenuChoice T>
void configure(platform::PopUpButton& button, const T& withMenuPresentableValue) {
    auto menu = std::make_unique<platform::Menu>(Presentation<T>::typeTitle());
    addChoices<T>(*menu);
    button.setMenu(std::move(menu));
    const auto choices = platform::flattenedItems(*button.menu());
    if (button.accessibleName().isEmpty())
        button.setAccessibleName(Presentation<T>::typeTitle());
    selectItem(button, choices, withMenuPresentableValue);
}

/// Configures `button` for `value` and keeps it in step with what `publisher` sends, from whatever thread.
/// `onValueChanged` hears of each choice of the user that differs from the value that was last published or
/// chosen, and of nothing else. Ends when what is appended to `cancellables` is cancelled, or with the
/// button.
template <MenuChoice T>
void bindMenu(platform::PopUpButton& button, const T& value, platform::AnyPublisher<T> publisher,
              std::vector<platform::AnyCancellable>& cancellables,
              std::function<void(const T&)> onValueChanged) {
    configure(button, value);
    const auto current = std::make_shared<RawValue<T>>(Presentation<T>::rawValue(value));
    const QPointer<platform::PopUpButton> shown(&button);
    cancellables.push_back(receiveOnMainThread(std::move(publisher))->sink([=](const T& published) {
        *current = Presentation<T>::rawValue(published);
        if (shown && shown->menu() != nullptr)
            selectItem(*shown, platform::flattenedItems(*shown->menu()), published);
    }));
    const auto choices = QObject::connect(&button, &platform::PopUpButton::itemChosen, &button,
                                          [=, &button, report = std::move(onValueChanged)] {
                                              const auto chosen = selectedRawRepresentableValue<T>(button);
                                              if (!chosen || *current == Presentation<T>::rawValue(*chosen))
                                                  return;
                                              *current = Presentation<T>::rawValue(*chosen);
                                              report(*chosen);
                                          });
    cancellables.emplace_back([choices] { QObject::disconnect(choices); });
}

} // namespace tidepool
