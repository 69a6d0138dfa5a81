#include "Tidepool/Palette/ColorDescription.h"

#include <QStringList>

namespace tidepool {

QString colorDescription(const QColor& color) {
    if (!color.isValid())
        return QStringLiteral("invalid");
    const QColor rgb = color.toRgb();
    QStringList parts{QStringLiteral("sRGB")};
    for (const float component : {rgb.redF(), rgb.greenF(), rgb.blueF(), rgb.alphaF()})
        parts << QString::number(static_cast<double>(component), 'g', 4);
    return parts.join(u' ');
}

} // namespace tidepool
