#include "Tidepool/Formatters/ExpressionFormatter.h"

#include "Platform/Formatters/LocalizedSearch.h"
#include "Platform/Formatters/PlainNumber.h"

namespace tidepool {

namespace {

bool isString(const QVariant& object) {
    return object.typeId() == QMetaType::QString;
}

bool isFreeText(const QVariant& object) {
    return isString(object) && !platform::plainNumber(object.toString());
}

} // namespace

ExpressionFormatter::ExpressionFormatter() {
    setFormatterBehavior(Behavior::defaultBehavior);
    setLenient(true);
}

std::optional<QString> ExpressionFormatter::stringForObjectValue(const QVariant& object) const {
    if (isFreeText(object))
        return object.toString();
    auto text = NumberFormatter::stringForObjectValue(object);
    if (!text && isString(object))
        text = object.toString();
    if (formatterBehavior() == Behavior::oldest || !text || text->isEmpty())
        return text;
    const QString suffix = positiveSuffix();
    return text->endsWith(suffix) ? *text : *text + suffix;
}

std::optional<QString> ExpressionFormatter::editingStringForObjectValue(const QVariant& object) const {
    if (isFreeText(object))
        return object.toString();
    auto text = NumberFormatter::editingStringForObjectValue(object);
    if (!text || formatterBehavior() == Behavior::oldest)
        return text;
    const auto suffix = platform::localizedStandardRange(*text, positiveSuffix());
    return suffix ? text->first(suffix->begin) : *text;
}

platform::Formatter::ObjectValue ExpressionFormatter::getObjectValue(const QString& text) const {
    if (platform::plainNumber(text))
        return NumberFormatter::getObjectValue(text);
    return {text, {}};
}

} // namespace tidepool
