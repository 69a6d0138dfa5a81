#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/CheckBoxCellStyle.h"

namespace tidepool {

/// A box by the state, and the title beside it.
class StyledCheckBoxCell : public RestyledCell<CheckBoxCellStyle, StyledButtonCell> {
public:
    StyledCheckBoxCell();

    double xOffset() const { return m_xOffset; }

    /// Moves the box, in points.
    void setXOffset(double offset) { set(m_xOffset, offset); }

    /// On unless it is on.
    platform::ControlState nextState(platform::ControlState state) const override;

    QRectF imageRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QRectF titleRect(const QRectF& bounds, const platform::CellContext& context) const override;
    void drawImage(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;

protected:
    QSizeF imageSize(const platform::CellContext& context) const override;

private:
    double m_xOffset = 0;
};

} // namespace tidepool
