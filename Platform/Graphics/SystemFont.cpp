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
    static const QString rounded = QStringLiteral("Quicksand");
    const QString general = QFont().family();
    return font(design == FontDesign::rounded ? QStringList{rounded, standard, general}
                                              : QStringList{standard, general},
                size, weight);
}

QFont customFont(const QString& family, qreal size, QFont::Weight weight) {
    return font({family, QFont().family()}, size, weight);
}

} // namespace platform
