#pragma once

#include "Platform/AudioUnits/AudioComponentDescription.h"

#include <QString>

namespace platform {

/// An installed audio component. A value: it stays as it was when the manager found it.
struct AudioComponent {
    AudioComponentDescription description;
    /// What identifies the plug-in on every machine.
    QString uri;
    /// For people.
    QString name;
    /// The directory of the plug-in's files, with a slash at the end.
    QString bundlePath;
};

} // namespace platform
