#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// An arrow-shaped bezel that points to where lines begin.
class BackButtonCell : public RestyledCell<BackButtonCellStyle, StyledButtonCell> {
public:
    BackButtonCell();

    QRectF drawingRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QSizeF cellSize(const platform::CellContext& context) const override;
    void drawBezel(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
};

} // namespace tidepool
