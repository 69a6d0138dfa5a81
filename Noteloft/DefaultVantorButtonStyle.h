#pragma once

#include "Noteloft/BezelButtonStyle.h"

namespace noteloft {

/// A button in the look of the kit, for the application's other windows. Dimmed while disabled.
class DefaultVantorButtonStyle : public BezelButtonStyle {
public:
    QFont font() const override;

protected:
    const platform::Image& bezel(bool isPressed) const override;
    QColor labelColor(const platform::ButtonConfiguration& configuration) const override;
};

} // namespace noteloft
