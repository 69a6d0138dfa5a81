#include "Plugin/Editor/EditorParameters.h"

#include "Platform/Core/MainThreadShared.h"
#include "Plugin/ControlPorts.h"

#include <QTimer>

#include <chrono>
#include <utility>

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

AudioUnitParameterUnit unit(ControlUnit unit) {
    switch (unit) {
    case ControlUnit::index:
    case ControlUnit::count:
        return AudioUnitParameterUnit::indexed;
    case ControlUnit::onOff:
        return AudioUnitParameterUnit::boolean;
    case ControlUnit::semitones:
        return AudioUnitParameterUnit::relativeSemiTones;
    case ControlUnit::percent:
        return AudioUnitParameterUnit::percent;
    case ControlUnit::milliseconds:
        return AudioUnitParameterUnit::milliseconds;
    }
    return AudioUnitParameterUnit::generic;
}

std::shared_ptr<AudioParameter> make(const ControlPort& port) {
    std::optional<QStringList> labels;
    if (port.unit == ControlUnit::index) {
        labels.emplace();
        for (const char* const label : port.labels)
            labels->append(QString::fromUtf8(label));
    }
    return platform::makeMainThreadShared<AudioParameter>(
        port.index, QString::fromUtf8(port.symbol), QString::fromUtf8(port.name), unit(port.unit),
        chorale::ClosedRange<float>(port.lower, port.upper), port.initial, labels);
}

std::map<std::uint32_t, std::shared_ptr<AudioParameter>> makeAll() {
    std::map<std::uint32_t, std::shared_ptr<AudioParameter>> all;
    for (const ControlPort& port : controlPorts())
        if (port.index != Ports::enabled) // the host's own switch
            all.emplace(port.index, make(port));
    return all;
}

/// How late a host may send back what it was told.
constexpr std::chrono::milliseconds echoTime(500);

float nearest(std::uint32_t port, float value) {
    return controlPort(static_cast<Ports::Index>(port)).nearest(value);
}

} // namespace

EditorParameters::EditorParameters(HostConnection& host)
    : m_host(host),
      m_parameters(makeAll()),
      m_audioUnit(std::make_shared<RemoteAudioUnit>()),
      m_settings(platform::makeMainThreadShared<chorale::ParameterSettings>()) {
    QList<std::shared_ptr<AudioParameter>> all;
    for (const auto& [port, parameter] : m_parameters)
        all << parameter;
    m_settings->setupParameters(all);
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
    // Models turn without steps, whatever their ports take.
    const float value = nearest(port, event.value);
    const bool isChange = event.eventType == AUParameterAutomationEventType::value;
    const bool isSwitch = controlPort(static_cast<Ports::Index>(port)).unit == ControlUnit::onOff;
    if (!m_host.isTouched(port)) {
        m_host.touch(port);
        m_answers[port].waiting.reset(); // outdated by what the user does now
        // A switch is held down until it is off again, any other change ends with itself.
        m_answers[port].isOwnTouch = isChange;
    }
    m_host.write(port, value);
    const bool isEnd = isChange ? m_answers[port].isOwnTouch && !(isSwitch && value > 0)
                                : event.eventType == AUParameterAutomationEventType::release;
    if (isEnd)
        release(port);
    if (isEnd && value != event.value) // after the change itself, which is still on its way to the screen
        QMetaObject::invokeMethod(
            &m_later, [this, port, value] { show(port, value); }, Qt::QueuedConnection);
}

void EditorParameters::release(std::uint32_t port) {
    m_host.release(port);
    m_answers[port].untilEcho.setRemainingTime(echoTime, Qt::PreciseTimer);
    QTimer::singleShot(echoTime, Qt::PreciseTimer, &m_later, [this, port] { showAnswer(port); });
}

void EditorParameters::receive(std::uint32_t port, float value) {
    if (m_host.isTouched(port) || !m_answers[port].untilEcho.hasExpired())
        m_answers[port].waiting = value;
    else
        show(port, value);
}

void EditorParameters::showAnswer(std::uint32_t port) {
    Answer& answer = m_answers[port];
    if (m_host.isTouched(port) || !answer.untilEcho.hasExpired())
        return;
    if (const auto waiting = std::exchange(answer.waiting, std::nullopt))
        show(port, *waiting);
}

void EditorParameters::show(std::uint32_t port, float value) {
    m_answers[port].waiting.reset();
    if (const auto parameter = m_audioUnit->parameterTree()->parameterWithAddress(port))
        parameter->setValue(nearest(port, value), m_token); // a curve of the host's has no steps either
}

} // namespace noteloft::plugin
