#include "Platform/Controls/Control.h"

#include <QWidget>

#include <cmath>

namespace platform {

void Control::setAction(std::optional<Selector> action, QObject* target) {
    setAction(action);
    setTarget(target);
}

bool Control::sendAction(std::optional<Selector> action, QObject* target) {
    return action && platform::sendAction(*action, target, &view());
}

bool Control::sendAction() {
    return sendAction(action(), target());
}

QRectF Control::focusRingMaskBounds() const {
    return QRectF(view().rect());
}

void Control::setAlphaValue(qreal alpha) {
    if (alpha == m_alphaValue)
        return;
    m_alphaValue = alpha;
    view().update();
}

QSize Control::naturalSize() const {
    const QSizeF size = intrinsicContentSize().grownBy(alignmentRectInsets());
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

} // namespace platform
