#include "Platform/AudioUnits/AudioComponentValidation.h"

#include "Platform/AudioUnits/ValidationProcess.h"
#include "Platform/Core/CodeLocation.h"
#include "Platform/Core/MainThread.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace platform {

AudioComponentValidationSettings& AudioComponentValidationSettings::shared() {
    static AudioComponentValidationSettings settings{
        .program = QFileInfo(programPath()).absolutePath() + u'/' +
                   QStringLiteral(NOTELOFT_PROGRAM_DIRECTORY "/audio-unit-validator")};
    return settings;
}

void audioComponentValidateWithResults(const AudioComponent& component, const QVariantMap&,
                                       AudioComponentValidationCompletion completion) {
    requireMainThread();
    auto* process = new ValidationProcess(component, AudioComponentValidationSettings::shared(),
                                          std::move(completion), QCoreApplication::instance());
    // Later, because a program that does not exist makes the process finish at once.
    QMetaObject::invokeMethod(process, &ValidationProcess::start, Qt::QueuedConnection);
}

} // namespace platform
