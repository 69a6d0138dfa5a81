#pragma once

#include "Chorale/ViewScale.h"
#include "Platform/Controls/ButtonStyle.h"

namespace chorale {

/// The small filled button that leads to an update.
class UpdateButtonStyle : public platform::ButtonStyle {
public:
    QFont font() const override;
    QSizeF size(QSizeF label) const override;
    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;

private:
    const qreal m_scale = ViewScale::current();
};

} // namespace chorale
