#pragma once

#include "Chorale/AudioParameter.h"
#include "Chorale/ChoraleAudioUnit.h"
#include "Platform/Core/Snapshot.h"

#include <QList>

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace chorale {

/// Ties a list of models to one audio unit: builds its parameter tree, and brings what changes there back to
/// the models. A plug-in derives from it and calls, in this order, `setupParameters`, `configureAudioUnit`
/// and `setupParameterTreeListeners`. Owned by shared pointers, best those of
/// `platform::makeMainThreadShared`. Main thread, unless a function says otherwise.
class ParameterSettings : public std::enable_shared_from_this<ParameterSettings> {
public:
    ParameterSettings() = default;
    virtual ~ParameterSettings() = default;
    ParameterSettings(const ParameterSettings&) = delete;
    ParameterSettings& operator=(const ParameterSettings&) = delete;

    /// The version in the main bundle's information, else "Unknown".
    virtual QString pluginVersion() const;

    /// Held weakly; null if there is none, or it has gone. Any thread.
    virtual std::shared_ptr<ChoraleAudioUnit> audioUnit() const;
    virtual void setAudioUnit(const std::shared_ptr<ChoraleAudioUnit>& audioUnit);

    /// Replaces the models. Not while an audio unit may set values.
    virtual void setupParameters(QList<std::shared_ptr<AudioParameter>> parameters);

    /// Gives the audio unit a new tree of the models' host parameters, then their values, in order.
    virtual void configureAudioUnit(const std::shared_ptr<ChoraleAudioUnit>& audioUnit);

    /// Answers the tree of the audio unit: its changes, values as text and texts as values. Does nothing
    /// without an audio unit or a tree.
    virtual void setupParameterTreeListeners();

    /// Sets the first model of this address, calls `updateDependentValues` if others follow from it, and
    /// hands the value on to the audio unit, whether there is a model or not. Any thread; as fit for one that
    /// renders audio as the audio unit and the hook are.
    virtual void setValue(float value, std::uint64_t forAddress, ParameterEditor source);

    /// For a subclass that knows what follows from a value; gets it as it came, not clamped. On the thread
    /// that set it.
    virtual void updateDependentValues(std::uint64_t forAddress, float value);

private:
    QList<std::shared_ptr<AudioParameter>> m_parameters;            // set once, before other threads look
    std::unordered_map<std::uint64_t, AudioParameter*> m_byAddress; // likewise; the first of each address
    platform::Snapshot<std::weak_ptr<ChoraleAudioUnit>>
        m_audioUnit; // written on the main thread, read on any
};

} // namespace chorale
