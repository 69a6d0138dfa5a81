#pragma once

#include "Chorale/ClosedRange.h"
#include "Chorale/ParameterEditor.h"
#include "Chorale/ParameterEditorState.h"
#include "Platform/AudioUnits/AUParameterTree.h"
#include "Platform/Core/CacheLine.h"
#include "Platform/Core/MainThreadShared.h"
#include "Platform/Display/DisplayTarget.h"

#include <QBindable>
#include <QObject>
#include <QProperty>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>

namespace chorale {

/// What is shown behind a number of this unit, and what a host is told as the unit's name: "%", "Hz", "dB",
/// "MS", else an empty text.
QString displayableSuffix(platform::AudioUnitParameterUnit unit);

/// The model of one parameter of an audio unit: it owns the parameter that the host sees, keeps the value
/// that the interface shows, and every change passes through it. Owned by shared pointers, best those of
/// `platform::makeMainThreadShared`, since threads that render audio hold it too. Made on the main thread.
class AudioParameter : public QObject, public platform::DisplayTarget {
    Q_OBJECT
    Q_PROPERTY(float value READ value WRITE setValue NOTIFY valueChanged BINDABLE bindableValue)
    Q_PROPERTY(
        bool isBeingInteractivelyEdited READ isBeingInteractivelyEdited WRITE setIsBeingInteractivelyEdited
            NOTIFY isBeingInteractivelyEditedChanged BINDABLE bindableIsBeingInteractivelyEdited)

public:
    using Address = platform::AUParameterAddress;

    /// Both values begin as `defaultValue`, which is not clamped. `valueStrings` are the names of the values
    /// from 0; `dependentParameterAddresses` are the parameters that follow from this one.
    AudioParameter(Address address, QString identifier, QString name, platform::AudioUnitParameterUnit units,
                   ClosedRange<float> valueRange, float defaultValue,
                   std::optional<QStringList> valueStrings = {},
                   std::optional<QList<Address>> dependentParameterAddresses = {});

    /// A parameter that does nothing, for views that need one before theirs exists.
    static std::shared_ptr<AudioParameter> dummyParam();

    Address address() const { return m_address; }

    const QString& identifier() const { return m_identifier; }

    const QString& id() const { return m_identifier; }

    const QString& name() const { return m_name; }

    platform::AudioUnitParameterUnit units() const { return m_units; }

    const ClosedRange<float>& valueRange() const { return m_valueRange; }

    float defaultValue() const { return m_defaultValue; }

    const std::optional<QStringList>& valueStrings() const { return m_valueStrings; }

    const std::optional<QList<Address>>& dependentParameterAddresses() const {
        return m_dependentParameterAddresses;
    }

    /// The parameter that the host sees.
    const std::shared_ptr<platform::AUParameter>& auParameter() const { return m_auParameter; }

    /// The value that the interface shows. Main thread; elsewhere `shownValue`.
    float value() const { return m_value; }

    /// Only shows a value: it is neither clamped nor sent to the host. Main thread.
    void setValue(float value);

    /// Can be observed, not set.
    QBindable<float> bindableValue() const { return {&m_value}; }

    /// `value`, for any thread.
    float shownValue() const { return m_shownValue.load(std::memory_order_relaxed); }

    /// The value that was set last, clamped; `value` follows one turn later. Any thread.
    float latestValue() const { return m_latestValue.load(std::memory_order_relaxed); }

    /// Changes the value: clamps it into the range, tells the host at once what comes from the interface, and
    /// shows it one turn of the main thread's loop later. A `change` to the value that is shown does nothing,
    /// unless another one is on its way. Any thread; never allocates, locks or waits in a
    /// `platform::RealtimeScope`, beyond what the host parameter's observers do.
    void setValue(float value, ParameterEditor source, ParameterEditorState state);

    /// Whether a control holds the parameter in a gesture; the host's changes are not shown meanwhile. Main
    /// thread.
    bool isBeingInteractivelyEdited() const { return m_isBeingInteractivelyEdited; }

    void setIsBeingInteractivelyEdited(bool isEdited) { m_isBeingInteractivelyEdited = isEdited; }

    QBindable<bool> bindableIsBeingInteractivelyEdited() { return &m_isBeingInteractivelyEdited; }

    /// What people read and type is `value` divided by `saveScaleFactor`. Main thread.
    float displayableValue() const;
    QString displayableSuffix() const;
    float displayScaleFactor() const;
    float saveScaleFactor() const;

    /// The place in the range, from 0 to 1; not a number in a range of one value. Main thread.
    float percent() const;

Q_SIGNALS:
    void valueChanged();
    void isBeingInteractivelyEditedChanged();

private:
    friend class ParameterGesture;
    friend class ParameterSteps;

    void show(std::size_t source, float value) override;

    const Address m_address;
    const QString m_identifier;
    const QString m_name;
    const platform::AudioUnitParameterUnit m_units;
    const ClosedRange<float> m_valueRange;
    const float m_defaultValue;
    const std::optional<QStringList> m_valueStrings;
    const std::optional<QList<Address>> m_dependentParameterAddresses;
    const std::shared_ptr<platform::AUParameter> m_auParameter;

    alignas(platform::cacheLine) std::atomic<float> m_latestValue; // any thread
    std::atomic<float> m_latestFromUi;                             // any thread
    alignas(platform::cacheLine) std::atomic<float> m_shownValue;  // written on the main thread, read on any
    int m_gestures = 0;                                            // main thread

    Q_OBJECT_BINDABLE_PROPERTY(AudioParameter, float, m_value, &AudioParameter::valueChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AudioParameter, bool, m_isBeingInteractivelyEdited, false,
                                         &AudioParameter::isBeingInteractivelyEditedChanged)
};

} // namespace chorale
