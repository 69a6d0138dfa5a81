#pragma once

#include "Noteloft/BezelButtonStyle.h"

namespace noteloft {

/// The link buttons of the welcome window.
class QuillfenButtonStyle : public BezelButtonStyle {
public:
    QFont font() const override;

protected:
    const platform::Image& bezel(bool isPressed) const override;
    QColor labelColor(const platform::ButtonConfiguration& configuration) const override;
};

} // namespace noteloft
