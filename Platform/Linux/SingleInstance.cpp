#include "Platform/Core/SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstring>
#include <thread>
#include <utility>

// Plain sockets, since loading Qt's network library would take longer than all that happens here.

namespace platform {

using namespace std::chrono_literals;

namespace {

constexpr int maximumMessage = 1 << 16;
constexpr char acknowledgement = '+';

/// A directory that belongs to this user alone; empty if there is none.
QString privateDirectory() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString directory =
        !runtime.isEmpty() ? runtime : QString(u"/tmp/noteloft-" + QString::number(getuid()));
    const QByteArray path = QFile::encodeName(directory);
    mkdir(path.constData(), S_IRWXU);

    struct stat status {};

    const bool isPrivate = lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
                           status.st_uid == getuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
    return isPrivate ? directory : QString();
}

/// A file descriptor that is closed with its owner.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}

    ~Descriptor() {
        if (m_number >= 0)
            close(m_number);
    }

    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }

private:
    int m_number;
};

bool setAddress(sockaddr_un& address, const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    return true;
}

int makeSocket() {
    return socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
}

void setPatience(const Descriptor& socket, std::chrono::milliseconds patience) {
    const timeval limit{patience.count() / 1000, patience.count() % 1000 * 1000};
    setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    setsockopt(socket.number(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

bool isSameUser(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

QByteArray encoded(const StartRequest& start) {
    const QJsonObject message{{QStringLiteral("arguments"), QJsonArray::fromStringList(start.arguments)},
                              {QStringLiteral("wayland"), start.activation.wayland},
                              {QStringLiteral("x11"), start.activation.x11}};
    return QJsonDocument(message).toJson(QJsonDocument::Compact);
}

StartRequest decoded(const QByteArray& message) {
    const QJsonObject start = QJsonDocument::fromJson(message).object();
    return {start[u"arguments"].toVariant().toStringList(),
            {start[u"wayland"].toString(), start[u"x11"].toString()}};
}

} // namespace

struct SingleInstance::Listener {
    Descriptor socket{makeSocket()};
    std::unique_ptr<QSocketNotifier> notifier;
    std::function<void(const StartRequest&)> received;

    void accept() const {
        const Descriptor connection(accept4(socket.number(), nullptr, nullptr, SOCK_CLOEXEC));
        setPatience(connection, 200ms); // the main thread waits meanwhile
        QByteArray message(maximumMessage, Qt::Uninitialized);
        const auto size = isSameUser(connection.number())
                              ? recv(connection.number(), message.data(), maximumMessage, 0)
                              : -1;
        if (size <= 0)
            return;
        message.truncate(size);
        ::send(connection.number(), &acknowledgement, 1, MSG_NOSIGNAL);
        received(decoded(message));
    }
};

SingleInstance::SingleInstance(const QString& name) {
    const QString directory = privateDirectory();
    if (!directory.isEmpty())
        m_path = directory + u'/' + name + u".socket";
}

SingleInstance::~SingleInstance() {
    if (m_listener)
        QFile::remove(m_path);
    if (m_lock >= 0)
        close(m_lock);
}

bool SingleInstance::lock() {
    if (m_path.isEmpty() || m_lock >= 0)
        return true;
    const QByteArray file = QFile::encodeName(m_path + u".lock");
    const int lock = open(file.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (lock >= 0 && flock(lock, LOCK_EX | LOCK_NB) != 0) {
        close(lock);
        return false;
    }
    m_lock = lock;
    return true;
}

bool SingleInstance::handOver(const StartRequest& start) {
    const QDeadlineTimer patience(2s);
    QByteArray message = encoded(start);
    if (message.size() > maximumMessage)
        message = encoded({});
    // Whoever holds the lock without listening is starting.
    while (!send(message)) {
        if (lock() || patience.hasExpired())
            return false;
        std::this_thread::sleep_for(10ms);
    }
    return true;
}

bool SingleInstance::send(const QByteArray& message) const {
    sockaddr_un address{};
    const Descriptor socket(makeSocket());
    setPatience(socket, 2s);
    if (!setAddress(address, m_path) ||
        connect(socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        !isSameUser(socket.number()))
        return false;
    char answer = 0;
    return ::send(socket.number(), message.constData(), static_cast<std::size_t>(message.size()),
                  MSG_NOSIGNAL) == message.size() &&
           recv(socket.number(), &answer, 1, 0) == 1 && answer == acknowledgement;
}

bool SingleInstance::listen(std::function<void(const StartRequest&)> received) {
    auto listener = std::make_unique<Listener>();
    sockaddr_un address{};
    if (!setAddress(address, m_path) || !lock())
        return false;
    // Whoever listened there does not answer any more.
    QFile::remove(m_path);
    if (bind(listener->socket.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::listen(listener->socket.number(), 8) != 0)
        return false;
    listener->received = std::move(received);
    listener->notifier = std::make_unique<QSocketNotifier>(listener->socket.number(), QSocketNotifier::Read);
    QObject::connect(listener->notifier.get(), &QSocketNotifier::activated, listener->notifier.get(),
                     [raw = listener.get()] { raw->accept(); });
    m_listener = std::move(listener);
    return true;
}

} // namespace platform
