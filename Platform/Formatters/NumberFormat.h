#pragma once

#include "Platform/Formatters/NumberSettings.h"

#include <QVariant>

#include <unicode/decimfmt.h>

#include <memory>

namespace platform {

/// Writes and reads numbers by settings that never change, with ICU: Qt's locales know neither prefixes and
/// suffixes nor a lenient reading.
class NumberFormat {
public:
    /// In the current locale if the settings name none.
    explicit NumberFormat(const NumberSettings& settings);

    const QLocale& locale() const { return m_locale; }

    const icu::DecimalFormat& decimalFormat() const { return *m_format; }

    /// None if the object is no number.
    std::optional<QString> write(const QVariant& object) const;

    /// None unless the whole text is a number, which may be infinite or none for all that.
    std::optional<double> read(const QString& text) const;

private:
    std::optional<double> readLeniently(const QString& text) const;
    std::optional<double> readPlain(const QString& text) const;

    const QLocale m_locale;
    const bool m_isLenient;
    const double m_plainUnit;                     // how many of a plain number make 1
    std::unique_ptr<icu::DecimalFormat> m_format; // with the settings
};

} // namespace platform
