#pragma once

#include <QByteArray>
#include <QHash>
#include <QSslServer>
#include <QString>
#include <QTemporaryDir>

/// A local web server over TLS with a certificate of its own for 127.0.0.1, made when the server is made.
class FeedServer : public QSslServer {
public:
    FeedServer();

    /// Whether the certificate was made and the server listens.
    bool isReady() const { return isListening() && !m_certificate.isNull(); }

    QSslCertificate certificate() const { return m_certificate; }

    QString url(const QString& path) const;

    /// Answers requests of `path` with `body`.
    void serve(const QByteArray& path, const QByteArray& body);
    /// Sends requests of `path` to `target`.
    void redirect(const QByteArray& path, const QString& target);

    /// Answers requests of `path` with a body that never ends.
    void flood(const QByteArray& path) { m_floods = path; }

    /// Leaves requests of `path` without an answer.
    void ignore(const QByteArray& path);

    int requestCount() const { return m_requestCount; }

    /// How much of bodies without an end was sent, in bytes.
    qint64 flooded() const { return m_flooded; }

private:
    bool makeCertificate();
    void accept();
    void answer(QTcpSocket& socket);
    void pour(QTcpSocket& socket);

    QTemporaryDir m_directory;
    QSslCertificate m_certificate;
    QHash<QByteArray, QByteArray> m_responses;
    QByteArray m_floods;
    qint64 m_flooded = 0;
    int m_requestCount = 0;
};
