#pragma once

#include "Platform/Formatters/Formatter.h"

namespace tidepool {

/// For fields in which the user names a constant: shown with a prefix, edited without. The object is the text
/// as typed; the prefix is neither added to it nor taken away. Letters, marks and digits of every script may
/// be typed, and "$", "_", "-" and ".".
class ConstantNameFormatter : public platform::Formatter {
public:
    const QString& requiredPrefix() const { return m_requiredPrefix; }

    void setRequiredPrefix(const QString& requiredPrefix) { m_requiredPrefix = requiredPrefix; }

    std::optional<QString> stringForObjectValue(const QVariant& object) const override;

    /// What follows the first place, anywhere in the name, that reads like the prefix.
    std::optional<QString> editingStringForObjectValue(const QVariant& object) const override;

    ObjectValue getObjectValue(const QString& text) const override;
    PartialString isPartialStringValid(const QString& partialText) const override;

private:
    QString errorDescription() const;

    QString m_requiredPrefix = QStringLiteral("$");
};

} // namespace tidepool
