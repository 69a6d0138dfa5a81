#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace platform {

/// Which generation of number formatting is asked for. Numbers look the same in each; derived formatters may
/// do less in the oldest.
enum class NumberFormatterBehavior { defaultBehavior = 0, oldest = 1000 };

enum class NumberFormatterStyle {
    none,    ///< Every digit that the number has, ungrouped.
    decimal, ///< As people of the locale write it, with three fraction digits at most.
    percent, ///< A hundred times the number, without fraction digits, with a percent sign.
};

/// What a number formatter is set to; what is not set is as its style has it in its locale.
struct NumberSettings {
    NumberFormatterBehavior behavior = NumberFormatterBehavior::defaultBehavior;
    NumberFormatterStyle style = NumberFormatterStyle::none;
    bool isLenient = false;
    std::optional<QLocale> locale; ///< None for the current locale.
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::optional<QString> positivePrefix;
    std::optional<QString> positiveSuffix;
    std::optional<QString> negativePrefix;
    std::optional<QString> negativeSuffix;
    std::optional<int> minimumFractionDigits;
    std::optional<int> maximumFractionDigits;
    std::optional<bool> usesGroupingSeparator;
};

} // namespace platform
