#include "Platform/Formatters/PlainNumber.h"

#include <QByteArray>

#include <locale.h>
#include <stdlib.h>

namespace platform {

std::optional<double> plainNumber(const QString& text) {
    static const locale_t cLocale = newlocale(LC_ALL_MASK, "C", nullptr);
    static const QByteArray skipped("\0\t\n\v\f\r ", 7); // by the library, but for the first
    const QByteArray bytes = text.toUtf8();
    if (bytes.isEmpty() || skipped.contains(bytes.front()))
        return {};
    char* end = nullptr;
    const double number = strtod_l(bytes.constData(), &end, cLocale);
    return end == bytes.constData() + bytes.size() ? std::optional(number) : std::nullopt;
}

} // namespace platform
