#pragma once

#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Buttons/StyledCheckBoxCell.h"

namespace tidepool {

/// The kit's check box. It can be mixed, but a click never makes it so.
class StyledCheckBox : public StyledButton {
    Q_OBJECT

public:
    explicit StyledCheckBox(const QString& title = {}, QWidget* parent = nullptr)
        : StyledCheckBox(title, std::make_unique<StyledCheckBoxCell>(), parent) {}

    StyledCheckBoxCell& cell() const { return static_cast<StyledCheckBoxCell&>(StyledButton::cell()); }

protected:
    StyledCheckBox(const QString& title, std::unique_ptr<StyledCheckBoxCell> cell, QWidget* parent)
        : StyledButton(title, std::move(cell), parent) {}
};

} // namespace tidepool
