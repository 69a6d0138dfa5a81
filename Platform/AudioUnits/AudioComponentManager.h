#pragma once

#include "Platform/AudioUnits/AudioComponent.h"

#include <QList>
#include <QStringList>

namespace platform {

/// Finds the audio components of this machine: the LV2 plug-ins whose manifest carries a type, a subtype and
/// a manufacturer, each a plain string of four characters, of the vocabulary
/// `http://quillfen.example/ns/component#`. Other plug-ins are no components. Main thread.
class AudioComponentManager {
public:
    static AudioComponentManager& shared();

    /// Also looks into the plug-in directory of the installation that the running program belongs to, after
    /// the places that `LV2_PATH` or the platform name. An application that carries a plug-in calls this
    /// once.
    void addCarriedComponents();

    /// The components that `matching` looks for, in the order of the plug-in library. Reads the manifests of
    /// all installed plug-ins at each call, which takes milliseconds to tens of milliseconds.
    QList<AudioComponent> components(const AudioComponentDescription& matching) const;

private:
    QStringList m_directories;
};

} // namespace platform
