#pragma once

#include "Chorale/AudioParameter.h"

#include <QLocale>
#include <QString>
#include <QStringList>

#include <optional>

namespace chorale {

/// The whole of `text` as a decimal number in the C locale, with an optional sign and exponent. None if it is
/// empty, begins with white space, or goes on behind the number. Too large a number is infinite.
std::optional<float> decimalNumber(const QString& text);

/// What a host shows: "-" for no value or what is not a number, the name whose index is the integral part, or
/// the number without fractional digits. Stops the program if there are names and the value fits into no
/// integer. Any thread that may allocate.
QString hostText(std::optional<float> value, const std::optional<QStringList>& valueStrings);

/// A number with exactly `decimalPlaces` fractional digits, as people of `locale` write it.
QString numberText(double number, int decimalPlaces, const QLocale& locale);

/// The shown value with exactly `decimalPlaces` fractional digits, without its suffix, as people of `locale`
/// write it. Main thread.
QString displayText(const AudioParameter& parameter, int decimalPlaces, const QLocale& locale = QLocale());

/// The same for a field that is edited: in the C locale, whatever the user's is. Main thread.
QString editingText(const AudioParameter& parameter, int decimalPlaces);

/// The value of the parameter that a text in an edited field stands for, clamped into the range; none for
/// what is not a number.
std::optional<float> editedValue(const AudioParameter& parameter, const QString& text);

} // namespace chorale
