#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// An arrow-shaped bezel that points to where lines begin.
class BackButtonCell : public StyledButtonCell {
public:
    BackButtonCell();

    const BackButtonCellStyle& style() const override { return resolvedStyle<BackButtonCellStyle>(); }

    QRectF drawingRect(const QRectF& bounds) const override;
    QSizeF cellSize() const override;
    void drawBezel(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
