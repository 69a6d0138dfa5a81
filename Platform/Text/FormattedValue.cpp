#include "Platform/Text/FormattedValue.h"

#include <exception>

namespace platform {

namespace {

/// What `ask` answers, or what `refuse` makes of the reason why it threw.
template <typename Ask, typename Refuse>
auto answered(Ask ask, Refuse refuse) {
    try {
        return ask();
    } catch (const std::exception& exception) {
        return refuse(QString::fromUtf8(exception.what()));
    } catch (...) {
        return refuse(QStringLiteral("This text cannot be used here."));
    }
}

std::optional<QString> noText(const QString&) {
    return {};
}

} // namespace

void FormattedValue::setObject(const QVariant& object) {
    m_object = object;
    m_error.reset();
}

QString FormattedValue::displayText() const {
    const QVariant object = m_object; // which the formatter may change
    const auto text = answered([&] { return m_formatter->stringForObjectValue(object); }, noText);
    return text.value_or(object.toString());
}

QString FormattedValue::editingText() const {
    const QVariant object = m_object;
    const auto text = answered([&] { return m_formatter->editingStringForObjectValue(object); }, noText);
    return text.value_or(object.toString());
}

Formatter::ObjectValue FormattedValue::answer(const QString& text) const {
    return answered([&] { return m_formatter->getObjectValue(text); },
                    [](const QString& reason) {
                        return Formatter::ObjectValue{{}, reason};
                    });
}

bool FormattedValue::read(QString text) { // NOLINT(performance-unnecessary-value-param)
    const Formatter::ObjectValue result = answer(text);
    if (result.isValid())
        m_object = result.object;
    m_error = result.errorDescription;
    return result.isValid();
}

void FormattedValue::forgive(QString text) { // NOLINT(performance-unnecessary-value-param)
    if (m_error && answer(text).isValid())
        m_error.reset();
}

Formatter::PartialString FormattedValue::partial(const QString& text) const {
    return answered([&] { return m_formatter->isPartialStringValid(text); },
                    [](const QString& reason) {
                        return Formatter::PartialString{{}, reason};
                    });
}

} // namespace platform
