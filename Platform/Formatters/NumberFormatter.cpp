#include "Platform/Formatters/NumberFormatter.h"

#include "Platform/Core/Localization.h"
#include "Platform/Formatters/IcuText.h"
#include "Platform/Formatters/NumberFormat.h"

#include <cmath>

namespace platform {

namespace {

using Affix = icu::UnicodeString& (icu::DecimalFormat::*)(icu::UnicodeString&) const;

QString affix(const NumberFormat& format, Affix get) {
    icu::UnicodeString text;
    return fromIcuText((format.decimalFormat().*get)(text));
}

QString notANumber() {
    return localizedString("NumberFormatter.Error.notANumber",
                           QStringLiteral("The text cannot be read as a number."));
}

QString belowMinimum(const QString& minimum) {
    return localizedString("NumberFormatter.Error.belowMinimum",
                           QStringLiteral("The number must be at least %1."))
        .arg(minimum);
}

QString aboveMaximum(const QString& maximum) {
    return localizedString("NumberFormatter.Error.aboveMaximum",
                           QStringLiteral("The number must be at most %1."))
        .arg(maximum);
}

} // namespace

NumberFormatter::NumberFormatter() = default;
NumberFormatter::~NumberFormatter() = default;

QString NumberFormatter::positivePrefix() const {
    return affix(format(), &icu::DecimalFormat::getPositivePrefix);
}

QString NumberFormatter::positiveSuffix() const {
    return affix(format(), &icu::DecimalFormat::getPositiveSuffix);
}

QString NumberFormatter::negativePrefix() const {
    return affix(format(), &icu::DecimalFormat::getNegativePrefix);
}

QString NumberFormatter::negativeSuffix() const {
    return affix(format(), &icu::DecimalFormat::getNegativeSuffix);
}

int NumberFormatter::minimumFractionDigits() const {
    return format().decimalFormat().getMinimumFractionDigits();
}

int NumberFormatter::maximumFractionDigits() const {
    return format().decimalFormat().getMaximumFractionDigits();
}

bool NumberFormatter::usesGroupingSeparator() const {
    return format().decimalFormat().isGroupingUsed();
}

void NumberFormatter::setPositivePrefix(const std::optional<QString>& prefix) {
    change(&NumberSettings::positivePrefix, prefix);
}

void NumberFormatter::setPositiveSuffix(const std::optional<QString>& suffix) {
    change(&NumberSettings::positiveSuffix, suffix);
}

void NumberFormatter::setNegativePrefix(const std::optional<QString>& prefix) {
    change(&NumberSettings::negativePrefix, prefix);
}

void NumberFormatter::setNegativeSuffix(const std::optional<QString>& suffix) {
    change(&NumberSettings::negativeSuffix, suffix);
}

void NumberFormatter::setMinimumFractionDigits(std::optional<int> digits) {
    change(&NumberSettings::minimumFractionDigits, digits);
}

void NumberFormatter::setMaximumFractionDigits(std::optional<int> digits) {
    change(&NumberSettings::maximumFractionDigits, digits);
}

void NumberFormatter::setUsesGroupingSeparator(std::optional<bool> uses) {
    change(&NumberSettings::usesGroupingSeparator, uses);
}

std::optional<QString> NumberFormatter::stringForObjectValue(const QVariant& object) const {
    return format().write(object);
}

Formatter::ObjectValue NumberFormatter::getObjectValue(const QString& text) const {
    if (text.isEmpty())
        return {};
    const auto number = format().read(text);
    if (!number || std::isnan(*number))
        return {{}, notANumber()};
    if (m_settings.minimum && *number < *m_settings.minimum)
        return {{}, belowMinimum(format().write(*m_settings.minimum).value_or(QString()))};
    if (m_settings.maximum && *number > *m_settings.maximum)
        return {{}, aboveMaximum(format().write(*m_settings.maximum).value_or(QString()))};
    if (std::isinf(*number))
        return {{}, notANumber()};
    return {*number, {}};
}

void NumberFormatter::forgetFormat() {
    m_format.reset();
}

/// The current locale may have changed since.
NumberFormat& NumberFormatter::format() const {
    if (!m_format || m_format->locale() != locale())
        m_format = std::make_unique<NumberFormat>(m_settings);
    return *m_format;
}

} // namespace platform
