#pragma once

#include "Platform/Controls/ButtonStyle.h"

namespace noteloft {

/// A button in the look of the kit, for the application's other windows. Dimmed while disabled.
class DefaultVantorButtonStyle : public platform::ButtonStyle {
public:
    QFont font() const override;
    QSizeF size(QSizeF label) const override;
    qreal overhang() const override;
    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;
};

} // namespace noteloft
