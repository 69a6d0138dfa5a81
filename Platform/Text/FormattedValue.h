#pragma once

#include "Platform/Formatters/Formatter.h"

#include <QString>
#include <QVariant>

#include <memory>
#include <optional>
#include <utility>

namespace platform {

/// The object of a field or a cell with a formatter, through which it is shown and edited as a text. A
/// formatter that throws counts as one that refuses, with what it threw as its reason. Hold it by a shared
/// pointer while you call: a formatter may destroy whoever asks it. Main thread.
class FormattedValue {
public:
    /// `formatter` is not null.
    explicit FormattedValue(std::shared_ptr<const Formatter> formatter) : m_formatter(std::move(formatter)) {}

    const std::shared_ptr<const Formatter>& formatter() const { return m_formatter; }

    const QVariant& object() const { return m_object; }

    /// Takes away the error, too.
    void setObject(const QVariant& object);

    /// What shows the object; as it is if it is nothing that the formatter shows.
    QString displayText() const;

    /// What the user begins to edit.
    QString editingText() const;

    /// Takes what the text is read as. False if it cannot be read: then the object stays. The text is a copy,
    /// since its owner may go meanwhile.
    bool read(QString text);

    /// Takes away the error, but not the object, if the text can be read.
    void forgive(QString text);

    /// Why the last text could not be read, for people.
    const std::optional<QString>& error() const { return m_error; }

    /// Whether the text may stand while it is being typed.
    Formatter::PartialString partial(const QString& text) const;

private:
    Formatter::ObjectValue answer(const QString& text) const;

    const std::shared_ptr<const Formatter> m_formatter;
    QVariant m_object;
    std::optional<QString> m_error;
};

} // namespace platform
