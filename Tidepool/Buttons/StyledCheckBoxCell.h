#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/CheckBoxCellStyle.h"

namespace tidepool {

/// A box by the state, and the title beside it.
class StyledCheckBoxCell : public StyledButtonCell {
public:
    StyledCheckBoxCell();

    const CheckBoxCellStyle& style() const override { return resolvedStyle<CheckBoxCellStyle>(); }

    double xOffset() const { return m_xOffset; }

    /// Moves the box, in points.
    void setXOffset(double offset) { m_xOffset = offset; }

    /// On unless it is on.
    platform::ControlState nextState() const override;

    QRectF imageRect(const QRectF& bounds) const override;
    QRectF titleRect(const QRectF& bounds) const override;
    void drawImage(QPainter& painter, const QRectF& frame) const override;

protected:
    QSizeF imageSize() const override;

private:
    double m_xOffset = 0;
};

} // namespace tidepool
