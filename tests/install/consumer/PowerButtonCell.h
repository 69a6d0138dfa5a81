#pragma once

#include <Tidepool/Buttons/StyledButtonCell.h>

/// The colours of power buttons.
class PowerButtonCellStyle : public tidepool::ButtonCellStyle {
public:
    PowerButtonCellStyle();
};

/// A disc that is lit while the button is on.
class PowerButtonCell : public tidepool::RestyledCell<PowerButtonCellStyle, tidepool::StyledButtonCell> {
public:
    PowerButtonCell();

    QSizeF cellSize(const platform::CellContext&) const override { return {24, 24}; }

    void drawBezel(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
};
