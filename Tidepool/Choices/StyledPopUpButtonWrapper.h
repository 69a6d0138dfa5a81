#pragma once

#include "Platform/Core/Binding.h"
#include "Tidepool/Choices/PopupItem.h"
#include "Tidepool/Choices/StyledPopUpButton.h"

namespace tidepool {

/// Keeps the selection of a `StyledPopUpButtonWrapper`, to which its items send their action.
class PopUpButtonCoordinator : public QObject {
    Q_OBJECT

public:
    explicit PopUpButtonCoordinator(platform::Binding<PopupObject> selection, StyledPopUpButton& button);

    static constexpr platform::Selector action{"selectItem"};

    const platform::Binding<PopupObject>& selection() const { return m_selection; }

    /// `sender` is the item, or a button for the item that it shows.
    Q_INVOKABLE void selectItem(QObject* sender);

    /// Selects in the button the first item with what the binding has; nothing if there is none.
    void showSelection();

private:
    const platform::Binding<PopupObject> m_selection;
    StyledPopUpButton& m_button;
};

/// A pop-up button of described items, bound to the object of the selected one.
///
///     new StyledPopUpButtonWrapper({{.object = 4, .title = tr("Quarter")},
///                                   {.object = 8, .title = tr("Eighth")}},
///                                  {[=] { return PopupObject(grid->division()); },
///                                   [=](const PopupObject& object) { grid->divide(*object.as<int>()); }});
class StyledPopUpButtonWrapper : public StyledPopUpButton {
    Q_OBJECT

public:
    /// `label` and `fixedWidth` as the button has them.
    StyledPopUpButtonWrapper(std::vector<PopupItem> items, platform::Binding<PopupObject> selection,
                             std::optional<QString> label = {}, std::optional<double> fixedWidth = {},
                             QWidget* parent = nullptr);

    const std::vector<PopupItem>& items() const { return m_items; }

    /// Shows the selection among the new items, too.
    void setItems(std::vector<PopupItem> items);

    /// To be called when the bound value has changed, unless the user has changed it here. The button also
    /// asks for it when it comes into sight.
    void updateSelection() { m_coordinator.showSelection(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::vector<PopupItem> m_items;
    PopUpButtonCoordinator m_coordinator;
};

} // namespace tidepool
