#include "Chorale/AudioParameter.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Core/MainThreadShared.h"
#include "Platform/Display/DisplayPump.h"
#include "Platform/Display/DisplayQueue.h"

#include <utility>

namespace chorale {

namespace {

using platform::AudioUnitParameterOptions;
using platform::AudioUnitParameterUnit;

constexpr float centsPerSemitone = 100;

// Decibels, linear gain and absolute cents.
constexpr std::uint32_t rampingUnits = 0x10'6000;
constexpr std::uint32_t lastRampingUnit = 20;

bool canRamp(AudioUnitParameterUnit units) {
    const auto number = static_cast<std::uint32_t>(units);
    return number <= lastRampingUnit && (rampingUnits >> number & 1) != 0;
}

template <typename List>
bool hasElements(const std::optional<List>& list) {
    return list && !list->isEmpty();
}

AudioUnitParameterOptions flags(const AudioParameter& parameter) {
    AudioUnitParameterOptions flags =
        platform::audioUnitParameterFlagIsReadable | platform::audioUnitParameterFlagIsWritable;
    if (hasElements(parameter.dependentParameterAddresses()))
        flags |= platform::audioUnitParameterFlagIsGlobalMeta | platform::audioUnitParameterFlagHasClump;
    if (hasElements(parameter.valueStrings()))
        flags |= platform::audioUnitParameterFlagValuesHaveStrings;
    if (canRamp(parameter.units()))
        flags |= platform::audioUnitParameterFlagCanRamp;
    return flags;
}

std::shared_ptr<platform::AUParameter> hostParameter(const AudioParameter& parameter) {
    auto host = platform::AUParameterTree::createParameter(
        {.identifier = parameter.identifier(),
         .name = parameter.name(),
         .address = parameter.address(),
         .min = parameter.valueRange().lowerBound(),
         .max = parameter.valueRange().upperBound(),
         .unit = parameter.units(),
         .unitName = displayableSuffix(parameter.units()),
         .flags = flags(parameter),
         .valueStrings = parameter.valueStrings(),
         .dependentParameters = parameter.dependentParameterAddresses()});
    host->setValue(parameter.defaultValue());
    return host;
}

/// A parameter tells the host a value that it sends to the display right after. What comes back meanwhile on
/// the same thread as a change of the host, through the tree's implementor, need not be sent as well.
class Telling {
public:
    Telling(const AudioParameter& parameter, float value)
        : m_parameter(parameter), m_value(value), m_outer(std::exchange(innermost, this)) {}

    ~Telling() { innermost = m_outer; }

    Telling(const Telling&) = delete;
    Telling& operator=(const Telling&) = delete;

    static bool isEcho(const AudioParameter& parameter, float value) {
        return innermost != nullptr && &innermost->m_parameter == &parameter && innermost->m_value == value;
    }

private:
    // In the static block: the first use on a thread must not allocate, even in a library that was loaded
    // late.
    [[gnu::tls_model("initial-exec")]] static inline thread_local const Telling* innermost = nullptr;

    const AudioParameter& m_parameter;
    const float m_value;
    const Telling* const m_outer;
};

} // namespace

QString displayableSuffix(AudioUnitParameterUnit unit) {
    switch (unit) {
    case AudioUnitParameterUnit::percent:
        return QStringLiteral("%");
    case AudioUnitParameterUnit::hertz:
        return QStringLiteral("Hz");
    case AudioUnitParameterUnit::decibels:
        return QStringLiteral("dB");
    case AudioUnitParameterUnit::milliseconds:
        return QStringLiteral("MS");
    default:
        return QStringLiteral("");
    }
}

AudioParameter::AudioParameter(Address address, QString identifier, QString name,
                               AudioUnitParameterUnit units, ClosedRange<float> valueRange,
                               float defaultValue, std::optional<QStringList> valueStrings,
                               std::optional<QList<Address>> dependentParameterAddresses)
    : DisplayTarget(platform::DisplayQueue::shared()),
      m_address(address),
      m_identifier(std::move(identifier)),
      m_name(std::move(name)),
      m_units(units),
      m_valueRange(valueRange),
      m_defaultValue(defaultValue),
      m_valueStrings(std::move(valueStrings)),
      m_dependentParameterAddresses(std::move(dependentParameterAddresses)),
      m_auParameter(hostParameter(*this)),
      m_latestValue(defaultValue),
      m_latestFromUi(defaultValue),
      m_shownValue(defaultValue),
      m_value(defaultValue) {
    platform::DisplayPump::shared().start();
}

std::shared_ptr<AudioParameter> AudioParameter::dummyParam() {
    return platform::makeMainThreadShared<AudioParameter>(
        0, QString(), QString(), AudioUnitParameterUnit::customUnit, ClosedRange<float>(0, 0), 0.F);
}

void AudioParameter::setValue(float value) {
    m_shownValue.store(value, std::memory_order_relaxed);
    m_latestValue.store(value, std::memory_order_relaxed);
    m_value = value;
}

void AudioParameter::setValue(float value, ParameterEditor source, ParameterEditorState state) {
    const float accepted = clamped(value, m_valueRange) + 0.F; // minus zero becomes zero
    // The shown value alone does not tell: a press and a release in one turn end where they began.
    if (state == ParameterEditorState::change && accepted == latestValue() && accepted == shownValue())
        return;
    m_latestValue.store(accepted, std::memory_order_relaxed);
    if (source == ParameterEditor::parameterObserver && Telling::isEcho(*this, accepted))
        return;
    if (source == ParameterEditor::ui) {
        m_latestFromUi.store(accepted, std::memory_order_relaxed);
        const Telling telling(*this, accepted);
        m_auParameter->setValueNow(accepted, eventType(state));
    }
    send(static_cast<std::size_t>(source), accepted);
}

void AudioParameter::show(std::size_t source, float value) {
    platform::requireMainThread();
    if (isBeingInteractivelyEdited() && static_cast<ParameterEditor>(source) != ParameterEditor::ui)
        return;
    m_shownValue.store(value, std::memory_order_relaxed);
    m_value = value;
}

float AudioParameter::displayableValue() const {
    return m_units == AudioUnitParameterUnit::absoluteCents ? value() / centsPerSemitone : value();
}

QString AudioParameter::displayableSuffix() const {
    return chorale::displayableSuffix(m_units);
}

float AudioParameter::displayScaleFactor() const {
    return m_units == AudioUnitParameterUnit::absoluteCents ? 1 / centsPerSemitone : 1;
}

float AudioParameter::saveScaleFactor() const {
    return m_units == AudioUnitParameterUnit::absoluteCents ? centsPerSemitone : 1;
}

float AudioParameter::percent() const {
    const float lower = m_valueRange.lowerBound();
    return (value() - lower) / (m_valueRange.upperBound() - lower);
}

} // namespace chorale
