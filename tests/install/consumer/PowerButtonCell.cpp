#include "PowerButtonCell.h"

#include <Tidepool/Palette/TPColors.h>

#include <QPainter>

PowerButtonCellStyle::PowerButtonCellStyle() {
    setBezelImages({});
    setBackgroundColor(tidepool::TPColors::grey30);
    setHighlightedBackgroundColor(tidepool::TPColors::Vantor::aqua);
}

PowerButtonCell::PowerButtonCell() {
    setButtonType(ButtonType::pushOnPushOff);
}

void PowerButtonCell::drawBezel(QPainter& painter, const QRectF& frame,
                                const platform::CellContext& context) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(styleOf(context).backgroundColor(context.state));
    painter.drawEllipse(frame.adjusted(4, 4, -4, -4));
}
