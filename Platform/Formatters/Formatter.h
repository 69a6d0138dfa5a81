#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace platform {

/// Turns the objects of a field or a column into texts for people, and such texts back into objects. Derive
/// from it for values of your own. An absent object is an invalid `QVariant`. Whatever it is given, a
/// formatter answers; it never throws. Main thread.
class Formatter {
public:
    /// What a text was read as.
    struct ObjectValue {
        /// Invalid where there is none, which need not be a failure.
        QVariant object;
        /// Why reading failed, for people; none on success.
        std::optional<QString> errorDescription;

        bool isValid() const { return !errorDescription; }
    };

    /// Whether a text may stand in a field while it is being typed.
    struct PartialString {
        /// What the field is to show; without one, what it showed before.
        std::optional<QString> newEditingString;
        /// Why the text is refused, for people; none if it is not.
        std::optional<QString> errorDescription;

        bool isValid() const { return !errorDescription; }
    };

    virtual ~Formatter() = default;

    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;
    Formatter(Formatter&&) = delete;
    Formatter& operator=(Formatter&&) = delete;

    /// The text that shows the object; none if it is nothing that this formatter shows.
    virtual std::optional<QString> stringForObjectValue(const QVariant& object) const = 0;

    /// The text that a field holds while the object is edited: unless overridden, the text that shows it.
    virtual std::optional<QString> editingStringForObjectValue(const QVariant& object) const {
        return stringForObjectValue(object);
    }

    /// Reads a whole text, as the user has left it.
    virtual ObjectValue getObjectValue(const QString& text) const = 0;

    /// Asked on each change of the text that is typed. Unless overridden, every text may stand.
    virtual PartialString isPartialStringValid(const QString& partialText) const { return {partialText, {}}; }

protected:
    Formatter() = default;
};

} // namespace platform
