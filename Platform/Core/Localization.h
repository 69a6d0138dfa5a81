#pragma once

#include <QString>
#include <QtGlobal>

namespace platform {

/// The translation installed for `key`, or `fallback`.
inline QString localizedString(const char* key, const QString& fallback) {
    const QString text = qtTrId(key);
    return text == QLatin1StringView(key) ? fallback : text;
}

} // namespace platform
