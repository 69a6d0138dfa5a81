#pragma once

#include "Platform/Core/FatalError.h"

#include <QUrl>

namespace platform {

/// A web address that is part of the program. Stops the program if it is malformed.
inline QUrl constantUrl(const QString& text) {
    QUrl url(text, QUrl::StrictMode);
    if (!url.isValid() || url.scheme().isEmpty() || url.host().isEmpty())
        fatalError("Malformed address: " + text.toStdString());
    return url;
}

} // namespace platform
