#include "FeedServer.h"

#include <QFile>
#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpSocket>

FeedServer::FeedServer() {
    connect(this, &QTcpServer::pendingConnectionAvailable, this, &FeedServer::accept);
    if (makeCertificate())
        listen(QHostAddress::LocalHost);
}

bool FeedServer::makeCertificate() {
    const QString keyPath = m_directory.filePath(QStringLiteral("key.pem"));
    const QString certificatePath = m_directory.filePath(QStringLiteral("certificate.pem"));
    const QString options =
        QStringLiteral("req -x509 -newkey ec -pkeyopt ec_paramgen_curve:prime256v1 -nodes "
                       "-days 2 -subj /CN=noteloft-test -addext subjectAltName=IP:127.0.0.1");
    const QStringList files = {QStringLiteral("-keyout"), keyPath, QStringLiteral("-out"), certificatePath};
    QProcess process;
    process.start(QStringLiteral("openssl"), options.split(u' ') + files);
    QFile key(keyPath);
    if (!process.waitForFinished() || process.exitCode() != 0 || !key.open(QIODevice::ReadOnly))
        return false;
    m_certificate = QSslCertificate::fromPath(certificatePath).value(0);
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(m_certificate);
    configuration.setPrivateKey(QSslKey(&key, QSsl::Ec));
    setSslConfiguration(configuration);
    return true;
}

QString FeedServer::url(const QString& path) const {
    return QStringLiteral("https://127.0.0.1:%1%2").arg(serverPort()).arg(path);
}

void FeedServer::serve(const QByteArray& path, const QByteArray& body) {
    m_responses[path] =
        "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

void FeedServer::redirect(const QByteArray& path, const QString& target) {
    m_responses[path] =
        "HTTP/1.1 302 Found\r\nLocation: " + target.toUtf8() + "\r\nContent-Length: 0\r\n\r\n";
}

void FeedServer::ignore(const QByteArray& path) {
    m_responses[path] = {};
}

void FeedServer::accept() {
    while (QTcpSocket* socket = nextPendingConnection())
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
}

void FeedServer::pour(QTcpSocket& socket) {
    constexpr qsizetype piece = 1 << 16;
    const auto* const encrypted = qobject_cast<QSslSocket*>(&socket);
    if (socket.state() == QTcpSocket::ConnectedState && encrypted->encryptedBytesToWrite() < piece)
        m_flooded += socket.write(QByteArray(piece, ' '));
}

void FeedServer::answer(QTcpSocket& socket) {
    const QByteArray request = socket.readAll();
    if (!request.startsWith("GET "))
        return;
    ++m_requestCount;
    const QByteArray path = request.split(' ').value(1);
    if (path == m_floods) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
        connect(
            &socket, &QTcpSocket::bytesWritten, &socket, [this, &socket] { pour(socket); },
            Qt::QueuedConnection);
        return;
    }
    socket.write(m_responses.value(path, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n"));
}
