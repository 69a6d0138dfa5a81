#include "Tidepool/Buttons/ButtonMenu.h"

#include <QMouseEvent>
#include <QWidget>

namespace tidepool {

bool asksForMenu(const QMouseEvent& press) {
    return press.button() == Qt::RightButton ||
           (press.button() == Qt::LeftButton && press.modifiers().testFlag(Qt::ControlModifier));
}

QPoint positionUnder(const QWidget& view) {
    constexpr int gap = 4;
    return {view.isRightToLeft() ? view.width() : 0, view.height() + gap};
}

} // namespace tidepool
