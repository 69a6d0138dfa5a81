#pragma once

#include <QLocale>
#include <QString>

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <limits>

namespace platform {

/// A view of the text, which must outlive it. ICU counts in 32 bits: what is beyond is left out.
inline icu::UnicodeString icuText(const QString& text) {
    constexpr qsizetype longest = std::numeric_limits<std::int32_t>::max() - 1;
    return {false, reinterpret_cast<const char16_t*>(text.constData()),
            static_cast<std::int32_t>(std::min(text.size(), longest))};
}

inline QString fromIcuText(const icu::UnicodeString& text) {
    return QString::fromUtf16(text.getBuffer(), text.length());
}

/// The same language, script and territory. ICU has a POSIX locale, too, but it does not ignore the case.
inline icu::Locale icuLocale(const QLocale& locale) {
    if (locale.language() == QLocale::C)
        return icu::Locale::getEnglish();
    const QString name = QLocale::languageToCode(locale.language()) + u'_' +
                         QLocale::scriptToCode(locale.script()) + u'_' +
                         QLocale::territoryToCode(locale.territory());
    return icu::Locale(name.toLatin1().constData());
}

} // namespace platform
