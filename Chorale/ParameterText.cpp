#include "Chorale/ParameterText.h"

#include "Chorale/SafeElement.h"
#include "Platform/Core/FatalError.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <locale.h>
#include <stdlib.h>

namespace chorale {

namespace {

constexpr auto integers = std::numeric_limits<std::int64_t>();

std::int64_t integralPart(float value) {
    // Minus the smallest integer is the first value that is too large.
    constexpr auto limit = -static_cast<float>(integers.min());
    if (!(value >= -limit && value < limit))
        platform::fatalError("A value with names does not fit into an integer");
    return static_cast<std::int64_t>(value);
}

bool beginsLikeANumber(const QByteArray& text) {
    const qsizetype first = text.startsWith('-') || text.startsWith('+') ? 1 : 0;
    return text.size() > first && (text[first] == '.' || (text[first] >= '0' && text[first] <= '9'));
}

// As the C library prints in the C locale: halves are rounded to the even digit.
QString plainText(double number, int decimalPlaces) {
    std::array<char, 512> text{};
    const auto end = std::to_chars(text.begin(), text.end(), number, std::chars_format::fixed,
                                   std::clamp(decimalPlaces, 0, 100));
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

} // namespace

std::optional<float> decimalNumber(const QString& text) {
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    const QByteArray bytes = text.toUtf8();
    // The library also knows white space, names such as "inf", and hexadecimal digits.
    if (!beginsLikeANumber(bytes) || bytes.contains('x') || bytes.contains('X'))
        return {};
    char* end = nullptr;
    const float number = strtof_l(bytes.constData(), &end, cLocale);
    return end == bytes.constData() + bytes.size() ? std::optional(number) : std::nullopt;
}

QString hostText(std::optional<float> value, const std::optional<QStringList>& valueStrings) {
    if (!value || std::isnan(*value))
        return QStringLiteral("-");
    if (valueStrings && !valueStrings->isEmpty())
        if (const QString* name = safeElement(*valueStrings, integralPart(*value)))
            return *name;
    // A locale's own part of this format is the sign between the digits, and there is none.
    return plainText(static_cast<double>(*value), 0);
}

QString numberText(double number, int decimalPlaces, const QLocale& locale) {
    const double rounded = plainText(number, decimalPlaces).toDouble(); // which has no minus before nothing
    return locale.toString(rounded, 'f', decimalPlaces);
}

QString displayText(const AudioParameter& parameter, int decimalPlaces, const QLocale& locale) {
    return numberText(static_cast<double>(parameter.displayableValue()), decimalPlaces, locale);
}

QString editingText(const AudioParameter& parameter, int decimalPlaces) {
    const double scale = parameter.units() == platform::AudioUnitParameterUnit::absoluteCents ? 0.01 : 1;
    return plainText(static_cast<double>(parameter.value()) * scale, decimalPlaces);
}

std::optional<float> editedValue(const AudioParameter& parameter, const QString& text) {
    const auto number = decimalNumber(text);
    if (!number)
        return {};
    return clamped(*number * parameter.saveScaleFactor(), parameter.valueRange());
}

} // namespace chorale
