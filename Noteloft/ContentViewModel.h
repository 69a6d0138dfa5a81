#pragma once

#include "Platform/AudioUnits/AudioComponent.h"

#include <QBindable>
#include <QObject>
#include <QProperty>
#include <QString>

#include <QCoroTask>

#include <cstdint>
#include <optional>
#include <utility>

namespace noteloft {

/// Knows the plug-in that the application carries, validates it, and says in one line how that went. Main
/// thread.
class ContentViewModel : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString statusText READ statusText NOTIFY statusTextChanged BINDABLE bindableStatusText)

public:
    /// The code of a `platform::AudioComponentValidationResult` and what the validation printed.
    using ValidationOutcome = std::pair<std::uint32_t, QString>;

    explicit ContentViewModel(QObject* parent = nullptr) : QObject(parent) {}

    /// "Validating..." until a validation has ended.
    QString statusText() const { return m_statusText; }

    /// Can be observed, not set.
    QBindable<QString> bindableStatusText() const { return {&m_statusText}; }

    /// Finds the plug-in, validates it, changes `statusText` once and prints the output. The model may go
    /// away in the meantime; then nothing happens at the end.
    QCoro::Task<void> validatePlugin();

    /// The first registered component with these three codes of four characters.
    std::optional<platform::AudioComponent> findComponent(const QString& type, const QString& subtype,
                                                          const QString& manufacturer) const;

    /// Validates in any case, whatever earlier validations gave, and prints the output as soon as it is
    /// there.
    QCoro::Task<ValidationOutcome> validateAU(platform::AudioComponent audioUnit);

    /// "aumi" is 0x61756D69; 0 for a text that has not exactly four characters of one UTF-8 byte each.
    static std::uint32_t fourCharCode(const QString& text);

Q_SIGNALS:
    void statusTextChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ContentViewModel, QString, m_statusText,
                                         QStringLiteral("Validating..."),
                                         &ContentViewModel::statusTextChanged)
};

} // namespace noteloft
