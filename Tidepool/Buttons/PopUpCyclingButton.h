#pragma once

#include "Tidepool/Buttons/CursorButton.h"

namespace tidepool {

/// Steps through the items of the pop-up button that is its target: forward, or back if Shift was held when
/// the user clicked. Other targets get its action.
class PopUpCyclingButton : public CursorButton {
    Q_OBJECT

public:
    using CursorButton::sendAction;

    explicit PopUpCyclingButton(QWidget* parent = nullptr);

    bool sendAction(std::optional<platform::Selector> action, QObject* target) override;
};

} // namespace tidepool
