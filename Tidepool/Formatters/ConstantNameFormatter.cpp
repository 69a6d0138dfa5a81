#include "Tidepool/Formatters/ConstantNameFormatter.h"

#include "Platform/Core/Localization.h"
#include "Platform/Formatters/LocalizedSearch.h"

#include <QList>

#include <algorithm>

namespace tidepool {

namespace {

//: Error message shown when user-entered constant name contains invalid characters
//% "Constant names must only contain A-Z, a-z, 0-9 and the characters _ and $"
constexpr const char* invalidCharacters =
    QT_TRID_NOOP("Constant names must only contain A-Z, a-z, 0-9 and the characters _ and $");

bool isAllowed(char32_t character) {
    return QChar::isLetterOrNumber(character) || QChar::isMark(character) ||
           QStringView(u"$_-.").contains(QChar::fromUcs4(character));
}

/// Half a character, a lone surrogate, comes as the replacement character, which is not allowed.
bool isName(const QString& text) {
    const QList<uint> characters = text.toUcs4();
    return std::all_of(characters.begin(), characters.end(), isAllowed);
}

bool isString(const QVariant& object) {
    return object.typeId() == QMetaType::QString;
}

} // namespace

std::optional<QString> ConstantNameFormatter::stringForObjectValue(const QVariant& object) const {
    if (!isString(object))
        return {};
    const QString name = object.toString();
    return name.startsWith(m_requiredPrefix) ? name : m_requiredPrefix + name;
}

std::optional<QString> ConstantNameFormatter::editingStringForObjectValue(const QVariant& object) const {
    if (!isString(object))
        return {};
    const QString name = object.toString();
    const auto prefix = platform::localizedStandardRange(name, m_requiredPrefix);
    return prefix ? name.sliced(prefix->end) : name;
}

platform::Formatter::ObjectValue ConstantNameFormatter::getObjectValue(const QString& text) const {
    if (isName(text))
        return {text, {}};
    return {{}, errorDescription()};
}

platform::Formatter::PartialString
ConstantNameFormatter::isPartialStringValid(const QString& partialText) const {
    if (isName(partialText))
        return {partialText, {}};
    return {{}, errorDescription()};
}

/// A translation may place the prefix as %1.
QString ConstantNameFormatter::errorDescription() const {
    return platform::localizedString(invalidCharacters, QString::fromLatin1(invalidCharacters))
        .replace(QLatin1StringView("%1"), m_requiredPrefix);
}

} // namespace tidepool
