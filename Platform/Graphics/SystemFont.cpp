#include "Platform/Graphics/SystemFont.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QStringList>

#include <algorithm>
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

bool hasEqualDigits(const QFont& font) {
    const QFontMetricsF metrics(font);
    const QString digits = QStringLiteral("0123456789");
    return std::all_of(digits.begin(), digits.end(), [&](QChar digit) {
        return metrics.horizontalAdvance(digit) == metrics.horizontalAdvance(u'0');
    });
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

QFont monospacedDigitSystemFont(qreal size, QFont::Weight weight) {
    for (const QString& family : systemFont(size, weight).families())
        if (const QFont face = customFont(family, size, weight); hasEqualDigits(face))
            return face;
    return customFont(QFontDatabase::systemFont(QFontDatabase::FixedFont).family(), size, weight);
}

QFont customFont(const QString& family, qreal size, QFont::Weight weight) {
    return font({family, QFont().family()}, size, weight);
}

} // namespace platform
