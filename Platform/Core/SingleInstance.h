#pragma once

#include "Platform/Core/Activation.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace platform {

/// What a start of the program was given.
struct StartRequest {
    QStringList arguments;
    ActivationToken activation = {};
};

/// Lets one process of a program run for each user. The first one listens on a socket that only its user can
/// open; a later one hands over what it was started with and ends. Main thread.
class SingleInstance {
public:
    /// `name` tells programs apart; a second object of the same name in one process is a later instance as
    /// well.
    explicit SingleInstance(const QString& name);
    ~SingleInstance();
    SingleInstance(const SingleInstance&) = delete;
    SingleInstance& operator=(const SingleInstance&) = delete;

    /// Sends `start` to the instance that runs, or an empty one if it is longer than 64 KiB in all. False if
    /// no instance runs, or it does not answer within two seconds: then this one is to run.
    bool handOver(const StartRequest& start);

    /// Becomes the instance that runs: `received` gets the later starts, on the main thread. False
    /// if there is no directory for the socket; the program then runs alone, which is no error.
    bool listen(std::function<void(const StartRequest&)> received);

private:
    struct Listener;

    bool lock();
    bool send(const QByteArray& message) const;

    QString m_path;
    int m_lock =
        -1; // held by the instance that runs, so that of two that start at once one waits for the other
    std::unique_ptr<Listener> m_listener;
};

} // namespace platform
