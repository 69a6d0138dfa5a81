#pragma once

#include "Gallery/GallerySettings.h"
#include "Gallery/Layout/StateGrid.h"
#include "Platform/Controls/PushButton.h"

#include <QStringList>

#include <utility>

namespace gallery {

/// A button that shows the keyboard's focus whoever has it.
template <typename Button>
class Focused : public Button {
public:
    using Button::Button;

protected:
    bool showsFocus() const override { return true; }
};

/// What a grid of buttons has in its columns.
struct ButtonStates {
    /// Also on and, for those who can be it, mixed.
    bool hasState = true;
    bool hasMixed = false;

    QStringList titles() const;

    /// Adds a row of buttons, each put into its state after `prepare` has set it up. Pressed ones stay so.
    template <typename Button, typename Prepare>
    void addRow(StateGrid& grid, const QString& variant, const GallerySettings& settings,
                Prepare prepare) const {
        QList<QWidget*> cells;
        const auto add = [&](Button* button, auto change) {
            prepare(*button);
            button->setEnabled(settings.isEnabled);
            change(*button);
            cells.append(button);
        };
        using platform::ControlState;
        add(new Button, [](Button&) {});
        add(new Button, [](Button& button) { button.setDown(true); });
        add(new Focused<Button>, [](Button&) {});
        if (hasState) {
            add(new Button, [](Button& button) { button.setState(ControlState::on); });
            add(new Button, [](Button& button) {
                button.setState(ControlState::on);
                button.setDown(true);
            });
        }
        if (hasMixed)
            add(new Button, [](Button& button) { button.setState(ControlState::mixed); });
        add(new Button, [](Button& button) { button.setEnabled(false); });
        if (hasState)
            add(new Button, [](Button& button) {
                button.setState(ControlState::on);
                button.setEnabled(false);
            });
        grid.addRow(variant, cells);
    }
};

} // namespace gallery
