#pragma once

#include "PowerButtonCell.h"

#include <Tidepool/Buttons/StyledButton.h>

/// Switches the effect on and off.
class PowerButton : public tidepool::StyledButton {
    Q_OBJECT

public:
    explicit PowerButton(QWidget* parent = nullptr);
};
