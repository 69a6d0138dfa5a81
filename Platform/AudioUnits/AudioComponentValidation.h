#pragma once

#include "Platform/AudioUnits/AudioComponent.h"
#include "Platform/AudioUnits/AudioComponentValidationResult.h"

#include <QString>
#include <QVariantMap>

#include <chrono>
#include <functional>

namespace platform {

/// A Boolean of the configuration: validate even if an earlier result is known. No result is kept from one
/// call to the next, so a validation always runs.
inline const QString audioComponentValidationForceKey = QStringLiteral("ForceValidation");

/// A list of strings in the results: the lines that the validation gave. Absent if it gave none or crashed.
inline const QString audioComponentValidationOutputKey = QStringLiteral("Output");

/// How a validation is run; the same for all that start after a change.
struct AudioComponentValidationSettings {
    /// The program that loads the plug-in. By default the one of the running program's installation.
    QString program;
    /// A validation that gives no line for so long has timed out.
    std::chrono::milliseconds silenceLimit{30'000};
    /// So has one that takes longer than this in all.
    std::chrono::milliseconds totalLimit{120'000};

    static AudioComponentValidationSettings& shared();
};

using AudioComponentValidationCompletion =
    std::function<void(AudioComponentValidationResult result, const QVariantMap& results)>;

/// Loads and tries the component in a process of its own and calls `completion` once, after this call has
/// returned. Needs the main thread and its event loop; ending the application ends the process and drops the
/// completion. A process that is killed by a signal, or ends before it has said so, makes the result
/// `failed`.
void audioComponentValidateWithResults(const AudioComponent& component, const QVariantMap& configuration,
                                       AudioComponentValidationCompletion completion);

} // namespace platform
