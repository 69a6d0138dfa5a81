#pragma once

#include "Platform/Controls/ButtonStyle.h"

namespace noteloft {

/// The link buttons of the welcome window.
class QuillfenButtonStyle : public platform::ButtonStyle {
public:
    QFont font() const override;
    QSizeF size(QSizeF label) const override;
    qreal overhang() const override;
    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;
};

} // namespace noteloft
