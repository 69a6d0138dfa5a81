#include "Noteloft/ContentViewModel.h"

#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/AudioUnits/AudioComponentValidation.h"
#include "Platform/AudioUnits/FourCharCode.h"
#include "Platform/Core/MainQueue.h"

#include <QPointer>
#include <QStringList>

#include <coroutine>
#include <cstdio>

namespace noteloft {

namespace {

using platform::AudioComponent;
using platform::AudioComponentValidationResult;

void printLine(const QString& text) {
    const QByteArray bytes = text.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

QString outputText(const QVariantMap& results) {
    const QVariant output = results.value(platform::audioComponentValidationOutputKey);
    return output.typeId() == QMetaType::QStringList ? output.toStringList().join(u'\n')
                                                     : QStringLiteral("Validation probably crashed");
}

/// Suspends a coroutine until the component has been validated.
class Validation {
public:
    explicit Validation(AudioComponent component) : m_component(std::move(component)) {}

    bool await_ready() const { return false; }

    void await_suspend(std::coroutine_handle<> waiting) {
        platform::audioComponentValidateWithResults(
            m_component, {{platform::audioComponentValidationForceKey, true}},
            [this, waiting](AudioComponentValidationResult result, const QVariantMap& results) {
                m_outcome = {static_cast<std::uint32_t>(result), outputText(results)};
                printLine(m_outcome.second);
                platform::MainQueue::async([waiting] { waiting.resume(); });
            });
    }

    ContentViewModel::ValidationOutcome await_resume() { return std::move(m_outcome); }

private:
    AudioComponent m_component;
    ContentViewModel::ValidationOutcome m_outcome;
};

} // namespace

QCoro::Task<void> ContentViewModel::validatePlugin() {
    const QString type = QStringLiteral("aumi");
    const QString subtype = QStringLiteral("mdfx");
    const QString manufacturer = QStringLiteral("Quil");
    const auto component = findComponent(type, subtype, manufacturer);
    if (!component) {
        // The text ends with a parenthesis that nothing opens; tools look for exactly this line.
        m_statusText =
            QStringLiteral("Failed to find component with type: %1, subtype: %2, manufacturer: %3)")
                .arg(type, subtype, manufacturer);
        co_return;
    }
    const QPointer<ContentViewModel> self(this);
    const auto [code, output] = co_await validateAU(*component);
    if (!self)
        co_return;
    const bool hasPassed = code == static_cast<std::uint32_t>(AudioComponentValidationResult::passed);
    m_statusText = hasPassed ? QStringLiteral("Validation Passed") : QStringLiteral("Validation Failed");
    printLine(output);
}

std::optional<AudioComponent> ContentViewModel::findComponent(const QString& type, const QString& subtype,
                                                              const QString& manufacturer) const {
    const platform::AudioComponentDescription description{.componentType = fourCharCode(type),
                                                          .componentSubType = fourCharCode(subtype),
                                                          .componentManufacturer =
                                                              fourCharCode(manufacturer)};
    // The manager takes a zero for any code; a malformed text is none.
    if (description.componentType == 0 || description.componentSubType == 0 ||
        description.componentManufacturer == 0)
        return {};
    const auto found = platform::AudioComponentManager::shared().components(description);
    return found.isEmpty() ? std::nullopt : std::optional(found.first());
}

QCoro::Task<ContentViewModel::ValidationOutcome> ContentViewModel::validateAU(AudioComponent audioUnit) {
    co_return co_await Validation(std::move(audioUnit));
}

std::uint32_t ContentViewModel::fourCharCode(const QString& text) {
    return platform::fourCharCode(text);
}

} // namespace noteloft
