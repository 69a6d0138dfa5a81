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

QString symbol(const icu::DecimalFormat& format, icu::DecimalFormatSymbols::ENumberFormatSymbol which) {
    return fromIcuText(format.getDecimalFormatSymbols()->getConstSymbol(which));
}

/// Without what stands before and after a number, but for the minus.
std::unique_ptr<icu::DecimalFormat> bareCopyOf(const icu::DecimalFormat& format) {
    NumberSettings bare;
    bare.positivePrefix = bare.positiveSuffix = bare.negativeSuffix = QString();
    bare.negativePrefix = symbol(format, icu::DecimalFormatSymbols::kMinusSignSymbol);
    auto copy = copyOf(format);
    applyAffixes(*copy, bare);
    return copy;
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

/// ICU takes a point for the grouping even where people write a space, so that "1.234" would be a thousand.
std::optional<double> readAsWritten(const icu::DecimalFormat& format, const QString& text) {
    if (text.contains(symbol(format, icu::DecimalFormatSymbols::kGroupingSeparatorSymbol)))
        return wholeNumber(format, text);
    const auto ungrouped = copyOf(format);
    ungrouped->setGroupingUsed(false);
    return wholeNumber(*ungrouped, text);
}

} // namespace

NumberFormat::NumberFormat(const NumberSettings& settings)
    : m_locale(settings.locale.value_or(QLocale())),
      m_isLenient(settings.isLenient),
      m_plainUnit(settings.style == NumberFormatterStyle::percent ? 100 : 1),
      m_format(formatOfStyle(settings.style, m_locale)) {
    applyAffixes(*m_format, settings);
    applyDigits(*m_format, settings);
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
    if (text.size() > longestNumber)
        return m_isLenient ? readPlain(text) : std::nullopt;
    const auto value = readAsWritten(*m_format, text);
    return value || !m_isLenient ? value : readLeniently(text);
}

/// What a field holds without its suffix is still written as in the locale: in German "1.000" is a thousand.
std::optional<double> NumberFormat::readLeniently(const QString& text) const {
    if (const auto value = readAsWritten(*bareCopyOf(*m_format), text))
        return value;
    if (const auto value = readPlain(text))
        return value;
    const auto lenient = copyOf(*m_format);
    lenient->setLenient(true);
    return wholeNumber(*lenient, text);
}

std::optional<double> NumberFormat::readPlain(const QString& text) const {
    const auto value = plainNumber(text);
    return value ? std::optional(*value / m_plainUnit) : std::nullopt;
}

} // namespace platform
