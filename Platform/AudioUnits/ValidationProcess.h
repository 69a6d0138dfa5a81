#pragma once

#include "Platform/AudioUnits/AudioComponentValidation.h"
#include "Platform/AudioUnits/ValidationFrame.h"

#include <QObject>
#include <QProcess>
#include <QStringList>
#include <QTimer>

#include <optional>

namespace platform {

/// One run of the validating program. Deletes itself after it has called the completion.
class ValidationProcess : public QObject {
public:
    ValidationProcess(const AudioComponent& component, const AudioComponentValidationSettings& settings,
                      AudioComponentValidationCompletion completion, QObject* parent);

    ~ValidationProcess() override;

    void start() { m_process.start(); }

private:
    void readFrames();
    void timeOut();
    void finish(bool crashed);
    AudioComponentValidationResult result(bool crashed) const;

    AudioComponentValidationCompletion m_completion;
    QProcess m_process;
    QTimer m_silence;
    QTimer m_total;
    ValidationFrameReader m_reader;
    QStringList m_lines;
    std::optional<AudioComponentValidationResult> m_verdict;
    bool m_hasEnded = false;
    bool m_hasTimedOut = false;
};

} // namespace platform
