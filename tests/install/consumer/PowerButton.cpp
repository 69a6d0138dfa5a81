#include "PowerButton.h"

PowerButton::PowerButton(QWidget* parent) : StyledButton({}, std::make_unique<PowerButtonCell>(), parent) {
    setAccessibleName(QStringLiteral("Power"));
}
