#include "Platform/AudioUnits/ValidationProcess.h"

#include <utility>

namespace platform {

namespace {

using Result = AudioComponentValidationResult;

std::optional<Result> verdict(const std::string& payload) {
    const bool isKnown = payload.size() == 1 && payload[0] >= static_cast<char>(Result::unknown) &&
                         payload[0] <= static_cast<char>(Result::unauthorizedInitialize);
    return isKnown ? std::optional(static_cast<Result>(payload[0])) : std::nullopt;
}

} // namespace

ValidationProcess::ValidationProcess(const AudioComponent& component,
                                     const AudioComponentValidationSettings& settings,
                                     AudioComponentValidationCompletion completion, QObject* parent)
    : QObject(parent), m_completion(std::move(completion)) {
    m_process.setProgram(settings.program);
    m_process.setArguments({component.uri, component.bundlePath});
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &ValidationProcess::readFrames);
    connect(&m_process, &QProcess::finished, this,
            [this](int, QProcess::ExitStatus status) { finish(status == QProcess::CrashExit); });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(true);
    });
    for (QTimer* timer : {&m_silence, &m_total}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &ValidationProcess::timeOut);
    }
    m_silence.start(settings.silenceLimit);
    m_total.start(settings.totalLimit);
}

ValidationProcess::~ValidationProcess() {
    // A process that is destroyed while it runs says so, to whom is no longer there.
    m_process.disconnect(this);
}

void ValidationProcess::readFrames() {
    const QByteArray bytes = m_process.readAllStandardOutput();
    if (bytes.isEmpty())
        return;
    if (m_silence.isActive())
        m_silence.start();
    m_reader.append({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    while (const auto frame = m_reader.next()) {
        if (frame->kind == ValidationFrame::Kind::line)
            m_lines.append(QString::fromStdString(frame->payload));
        else if (frame->kind == ValidationFrame::Kind::verdict)
            m_verdict = verdict(frame->payload);
        else
            m_hasEnded = true;
    }
}

void ValidationProcess::timeOut() {
    m_hasTimedOut = true;
    m_process.kill();
}

Result ValidationProcess::result(bool crashed) const {
    if (m_hasTimedOut)
        return Result::timedOut;
    if (crashed || m_lines.isEmpty() || !m_hasEnded)
        return Result::failed;
    return m_verdict.value_or(Result::unknown);
}

void ValidationProcess::finish(bool crashed) {
    m_silence.stop();
    m_total.stop();
    readFrames();
    QVariantMap results;
    if (!m_lines.isEmpty() && (m_hasTimedOut || !crashed))
        results.insert(audioComponentValidationOutputKey, m_lines);
    deleteLater();
    std::exchange(m_completion, {})(result(crashed), results);
}

} // namespace platform
