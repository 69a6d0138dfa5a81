#pragma once

#include <Tidepool/Buttons/StyledButtonCell.h>

/// The colours of power buttons.
class PowerButtonCellStyle : public tidepool::ButtonCellStyle {
public:
    PowerButtonCellStyle();
};

/// A disc that is lit while the button is on.
class PowerButtonCell : public tidepool::StyledButtonCell {
public:
    PowerButtonCell();

    const PowerButtonCellStyle& style() const override { return resolvedStyle<PowerButtonCellStyle>(); }

    QSizeF cellSize() const override { return {24, 24}; }

    void drawBezel(QPainter& painter, const QRectF& frame) const override;
};
