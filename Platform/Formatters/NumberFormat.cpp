#include "Platform/Formatters/NumberFormat.h"

#include "Platform/Core/FatalError.h"
#include "Platform/Formatters/IcuText.h"
#include "Platform/Formatters/PlainNumber.h"

#include <unicode/dcfmtsym.h>

#include <array>
#include <charconv>

namespace platform {

namespace {

constexpr int mostFractionDigits = 340; // those of the smallest double, and to spare

/// ICU's time grows with the square of the digits, and no double needs as many.
constexpr qsizetype longestNumber = 1200;

std::unique_ptr<icu::DecimalFormat> formatOfStyle(NumberFormatterStyle style, const QLocale& locale) {
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::DecimalFormat> format(dynamic_cast<icu::DecimalFormat*>(
        style == NumberFormatterStyle::percent
            ? icu::NumberFormat::createPercentInstance(icuLocale(locale), status)
            : icu::NumberFormat::createInstance(icuLocale(locale), status)));
    if (!format)
        fatalError("ICU has no format for numbers");
    if (style == NumberFormatterStyle::none) {
        format->setGroupingUsed(false);
        format->setMaximumFractionDigits(mostFractionDigits);
    }
    return format;
}

void applyAffixes(icu::DecimalFormat& format, const NumberSettings& settings) {
    if (settings.positivePrefix)
        format.setPositivePrefix(icuText(*settings.positivePrefix));
    if (settings.positiveSuffix)
        format.setPositiveSuffix(icuText(*settings.positiveSuffix));
    if (settings.negativePrefix)
        format.setNegativePrefix(icuText(*settings.negativePrefix));
    if (settings.negativeSuffix)
        format.setNegativeSuffix(icuText(*settings.negativeSuffix));
}

void applyDigits(icu::DecimalFormat& format, const NumberSettings& settings) {
    if (settings.minimumFractionDigits)
        format.setMinimumFractionDigits(std::clamp(*settings.minimumFractionDigits, 0, mostFractionDigits));
    if (settings.maximumFractionDigits)
        format.setMaximumFractionDigits(std::clamp(*settings.maximumFractionDigits, 0, mostFractionDigits));
    if (settings.usesGroupingSeparator)
        format.setGroupingUsed(*settings.usesGroupingSeparator ? 1 : 0);
}

std::unique_ptr<icu::DecimalFormat> copyOf(const icu::DecimalFormat& format) {
    return std::unique_ptr<icu::DecimalFormat>(format.clone());
}

icu::Formattable decimal(icu::StringPiece digits) {
    UErrorCode status = U_ZERO_ERROR;
    return {digits, status};
}

/// The digits that a float needs, not those of the double that it becomes.
icu::Formattable number(float value) {
    std::array<char, 64> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value);
    if (!std::isfinite(value))
        return static_cast<double>(value);
    return decimal({text.data(), static_cast<std::int32_t>(end.ptr - text.begin())});
}

std::optional<icu::Formattable> number(const QVariant& object) {
    switch (object.typeId()) {
    case QMetaType::Double:
        return object.toDouble();
    case QMetaType::Float:
        return number(object.toFloat());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return decimal(QByteArray::number(object.toULongLong()).constData());
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return static_cast<std::int64_t>(object.toLongLong());
    case QMetaType::QString:
        if (const auto plain = plainNumber(object.toString()))
            return *plain;
        return {};
    default:
        return {};
    }
}

std::optional<double> wholeNumber(const icu::DecimalFormat& format, const QString& text) {
    const icu::UnicodeString all = icuText(text);
    icu::Formattable result;
    icu::ParsePosition end(0);
    UErrorCode status = U_ZERO_ERROR;
    format.parse(all, result, end);
    const double value = result.getDouble(status);
    return end.getIndex() == all.length() && U_SUCCESS(status) ? std::optional(value) : std::nullopt;
}

} // namespace

NumberFormat::NumberFormat(const NumberSettings& settings)
    : m_locale(settings.locale.value_or(QLocale())),
      m_isLenient(settings.isLenient),
      m_plainUnit(settings.style == NumberFormatterStyle::percent ? 100 : 1),
      m_format(formatOfStyle(settings.style, m_locale)) {
    applyAffixes(*m_format, settings);
    applyDigits(*m_format, settings);
    m_ungrouped = copyOf(*m_format);
    m_ungrouped->setGroupingUsed(false);
    m_lenient = copyOf(*m_format);
    m_lenient->setLenient(true);
}

std::optional<QString> NumberFormat::write(const QVariant& object) const {
    const auto value = number(object);
    if (!value)
        return {};
    UErrorCode status = U_ZERO_ERROR;
    icu::UnicodeString text;
    m_format->format(*value, text, status);
    return U_SUCCESS(status) ? std::optional(fromIcuText(text)) : std::nullopt;
}

std::optional<double> NumberFormat::read(const QString& text) const {
    const bool isShort = text.size() <= longestNumber;
    std::optional<double> value;
    if (isShort)
        value = readAsWritten(text);
    if (!value && m_isLenient)
        value = readPlain(text);
    if (!value && m_isLenient && isShort)
        value = wholeNumber(*m_lenient, text);
    return value;
}

/// ICU takes a point for the grouping even where people write a space, so that "1.234" would be a thousand.
std::optional<double> NumberFormat::readAsWritten(const QString& text) const {
    const auto& symbols = *m_format->getDecimalFormatSymbols();
    const QString separator =
        fromIcuText(symbols.getConstSymbol(icu::DecimalFormatSymbols::kGroupingSeparatorSymbol));
    return wholeNumber(text.contains(separator) ? *m_format : *m_ungrouped, text);
}

std::optional<double> NumberFormat::readPlain(const QString& text) const {
    const auto value = plainNumber(text);
    return value ? std::optional(*value / m_plainUnit) : std::nullopt;
}

} // namespace platform
