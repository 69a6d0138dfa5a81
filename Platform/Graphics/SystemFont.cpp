#include "Platform/Graphics/SystemFont.h"

#include <QStringList>

#include <cmath>

namespace platform {

namespace {

QFont font(const QStringList& families, qreal size, QFont::Weight weight) {
    QFont font;
    font.setFamilies(families);
    font.setPixelSize(static_cast<int>(std::lround(size)));
    font.setWeight(weight);
    return font;
}

} // namespace

QFont systemFont(qreal size, QFont::Weight weight, FontDesign design) {
    static const QString standard = QStringLiteral("Inter");
    const QString general = QFont().family();
    if (design == FontDesign::standard)
        return font({standard, general}, size, weight);
    // Debian's medium is a family of its own.
    const QString rounded =
        weight == QFont::Medium ? QStringLiteral("Quicksand Medium") : QStringLiteral("Quicksand");
    return font({rounded, standard, general}, size, weight);
}

QFont customFont(const QString& family, qreal size, QFont::Weight weight) {
    return font({family, QFont().family()}, size, weight);
}

} // namespace platform
