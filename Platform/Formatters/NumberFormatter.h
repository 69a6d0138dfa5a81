#pragma once

#include "Platform/Formatters/Formatter.h"
#include "Platform/Formatters/NumberSettings.h"

#include <memory>

namespace platform {

class NumberFormat;

/// Shows numbers as the people of a locale write them, and reads them. Shows an object of an integer or
/// floating-point type, or a string that `plainNumber` takes. Reads a finite `double`; an empty text is no
/// object.
class NumberFormatter : public Formatter {
public:
    using Behavior = NumberFormatterBehavior;
    using Style = NumberFormatterStyle;

    NumberFormatter();
    ~NumberFormatter() override;

    Behavior formatterBehavior() const { return m_settings.behavior; }

    void setFormatterBehavior(Behavior behavior) { change(&NumberSettings::behavior, behavior); }

    /// A lenient formatter also reads what it would write otherwise: a number without its suffix or with
    /// another grouping. What the locale does not write so, but `plainNumber` takes, it reads like that;
    /// under `percent` it is a number of hundredths.
    bool isLenient() const { return m_settings.isLenient; }

    void setLenient(bool isLenient) { change(&NumberSettings::isLenient, isLenient); }

    Style numberStyle() const { return m_settings.style; }

    /// Settings that were made stay; the others become the style's.
    void setNumberStyle(Style style) { change(&NumberSettings::style, style); }

    /// Unless set, the current locale of each moment.
    QLocale locale() const { return m_settings.locale.value_or(QLocale()); }

    void setLocale(const std::optional<QLocale>& locale) { change(&NumberSettings::locale, locale); }

    std::optional<double> minimum() const { return m_settings.minimum; }

    /// A smaller number is shown, but not read. None for no limit.
    void setMinimum(std::optional<double> minimum) { change(&NumberSettings::minimum, minimum); }

    std::optional<double> maximum() const { return m_settings.maximum; }

    /// A larger number is shown, but not read. None for no limit.
    void setMaximum(std::optional<double> maximum) { change(&NumberSettings::maximum, maximum); }

    /// What stands before and after numbers of either sign. None for the style's, such as its percent sign.
    QString positivePrefix() const;
    QString positiveSuffix() const;
    QString negativePrefix() const;
    QString negativeSuffix() const;
    void setPositivePrefix(const std::optional<QString>& prefix);
    void setPositiveSuffix(const std::optional<QString>& suffix);
    void setNegativePrefix(const std::optional<QString>& prefix);
    void setNegativeSuffix(const std::optional<QString>& suffix);

    int minimumFractionDigits() const;
    int maximumFractionDigits() const;
    bool usesGroupingSeparator() const;

    /// None for the style's. Of two that contradict each other the maximum holds.
    void setMinimumFractionDigits(std::optional<int> digits);
    void setMaximumFractionDigits(std::optional<int> digits);
    void setUsesGroupingSeparator(std::optional<bool> uses);

    std::optional<QString> stringForObjectValue(const QVariant& object) const override;
    ObjectValue getObjectValue(const QString& text) const override;

private:
    template <typename T>
    void change(T NumberSettings::*field, const T& value) {
        m_settings.*field = value;
        forgetFormat();
    }

    void forgetFormat();
    NumberFormat& format() const;

    NumberSettings m_settings;
    mutable std::unique_ptr<NumberFormat> m_format; // of these settings; made when it is needed
};

} // namespace platform
