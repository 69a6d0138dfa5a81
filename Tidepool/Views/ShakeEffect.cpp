#include "Tidepool/Views/ShakeEffect.h"

#include <cmath>
#include <numbers>

namespace tidepool {

QTransform ShakeEffect::effectValue(QSizeF) const {
    return QTransform::fromTranslate(amount * std::sin(animatableData * std::numbers::pi * shakes), 0);
}

} // namespace tidepool
