#include "Plugin/Editor/EditorParameters.h"

#include "Platform/Core/MainThreadShared.h"
#include "Plugin/NoteloftPlugin.h"

#include <cmath>

namespace noteloft::plugin {

namespace {

using chorale::AudioParameter;
using platform::AudioUnitParameterUnit;
using platform::AUParameterAutomationEventType;

/// The processing lies behind the host, which is told of changes by the observer.
class RemoteAudioUnit : public chorale::ChoraleAudioUnit {
public:
    void applyParameterValue(platform::AUParameterAddress, float) override {}
};

struct Range {
    float lower, upper, initial;
};

std::shared_ptr<AudioParameter> make(NoteloftPlugin::Port port, const QString& name,
                                     AudioUnitParameterUnit unit, Range range) {
    return platform::makeMainThreadShared<AudioParameter>(
        port, name.toLower(), name, unit, chorale::ClosedRange<float>(range.lower, range.upper),
        range.initial);
}

} // namespace

EditorParameters::EditorParameters(HostConnection& host)
    : m_host(host),
      m_transpose(make(NoteloftPlugin::transpose, QStringLiteral("Transpose"),
                       AudioUnitParameterUnit::relativeSemiTones, {-24, 24, 0})),
      m_velocity(make(NoteloftPlugin::velocity, QStringLiteral("Velocity"), AudioUnitParameterUnit::percent,
                      {0, 200, 100})),
      m_chance(make(NoteloftPlugin::chance, QStringLiteral("Chance"), AudioUnitParameterUnit::percent,
                    {0, 100, 100})),
      m_hold(make(NoteloftPlugin::hold, QStringLiteral("Hold"), AudioUnitParameterUnit::boolean, {0, 1, 0})),
      m_audioUnit(std::make_shared<RemoteAudioUnit>()),
      m_settings(platform::makeMainThreadShared<chorale::ParameterSettings>()) {
    m_settings->setupParameters({m_transpose, m_velocity, m_chance, m_hold});
    m_settings->configureAudioUnit(m_audioUnit);
    m_settings->setupParameterTreeListeners();
    m_token = m_audioUnit->parameterTree()->tokenByAddingParameterAutomationObserver(
        [this](const auto& event) { send(event); });
}

EditorParameters::~EditorParameters() {
    m_audioUnit->parameterTree()->removeParameterObserver(m_token);
}

void EditorParameters::send(const platform::AUParameterAutomationEvent& event) {
    const auto port = static_cast<std::uint32_t>(event.address);
    const auto parameter = m_audioUnit->parameterTree()->parameterWithAddress(event.address);
    // A dial turns without steps, whatever its port takes.
    const bool isWhole = parameter && parameter->unit() == AudioUnitParameterUnit::relativeSemiTones;
    const float value = isWhole ? std::round(event.value) : event.value;
    switch (event.eventType) {
    case AUParameterAutomationEventType::touch:
        m_host.touch(port, value);
        break;
    case AUParameterAutomationEventType::value:
        m_host.write(port, value);
        break;
    case AUParameterAutomationEventType::release:
        m_host.release(port, value);
        // After the change that tells of the release, which is still on its way to the screen.
        if (const auto waiting = m_waiting.extract(port))
            QMetaObject::invokeMethod(
                &m_later, [this, port, shown = waiting.mapped()] { show(port, shown); },
                Qt::QueuedConnection);
        break;
    }
}

void EditorParameters::receive(std::uint32_t port, float value) {
    if (m_host.isTouched(port))
        m_waiting.insert_or_assign(port, value);
    else
        show(port, value);
}

void EditorParameters::show(std::uint32_t port, float value) {
    if (const auto parameter = m_audioUnit->parameterTree()->parameterWithAddress(port))
        parameter->setValue(value, m_token);
}

} // namespace noteloft::plugin
