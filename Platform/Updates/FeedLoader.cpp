#include "Platform/Updates/FeedLoader.h"

#include "Platform/Updates/Appcast.h"

#include <QMetaObject>
#include <QNetworkReply>
#include <QNetworkRequest>

#include <chrono>
#include <utility>

namespace platform {

namespace {

constexpr std::chrono::milliseconds patience{30'000};
constexpr int maximumRedirects = 5;

const QString tryLater =
    QStringLiteral("Please try again later, or get the latest version from the website.");

UpdateError insecureAddress() {
    return {QStringLiteral("The update information is not offered over a secure connection."), tryLater};
}

UpdateError networkError(QNetworkReply::NetworkError error) {
    switch (error) {
    case QNetworkReply::InsecureRedirectError:
    case QNetworkReply::ProtocolUnknownError:
        return insecureAddress();
    case QNetworkReply::SslHandshakeFailedError:
        return {QStringLiteral("The update server could not prove its identity."),
                QStringLiteral("Please check the date and time of this computer, or try another network.")};
    case QNetworkReply::ContentNotFoundError:
    case QNetworkReply::ContentGoneError:
        return {QStringLiteral("The update information was not found on the server."), tryLater};
    default:
        return {QStringLiteral("The update server could not be reached."),
                QStringLiteral("Please check your internet connection and try again.")};
    }
}

QNetworkRequest request(const QUrl& url) {
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setMaximumRedirectsAllowed(maximumRedirects);
    request.setTransferTimeout(static_cast<int>(patience.count()));
    return request;
}

} // namespace

void FeedLoader::load(const QUrl& url, Completion completion) {
    m_data.clear();
    m_completion = std::move(completion);
    if (url.scheme() != QStringLiteral("https")) {
        QMetaObject::invokeMethod(
            this, [this] { finish(insecureAddress()); }, Qt::QueuedConnection);
        return;
    }
    m_reply = m_manager.get(request(url));
    connect(m_reply, &QNetworkReply::readyRead, this, &FeedLoader::read);
    connect(m_reply, &QNetworkReply::finished, this, &FeedLoader::finishReply);
}

void FeedLoader::cancel() {
    m_completion = {};
    if (m_reply)
        m_reply->abort();
}

void FeedLoader::read() {
    m_data += m_reply->read(Appcast::maximumSize + 1 - m_data.size());
    if (m_data.size() > Appcast::maximumSize)
        m_reply->abort();
}

void FeedLoader::finishReply() {
    const auto error = m_reply->error();
    m_reply->deleteLater();
    m_reply.clear();
    if (m_data.size() > Appcast::maximumSize)
        finish(UpdateError{QStringLiteral("The update information is too long."), tryLater});
    else
        finish(error == QNetworkReply::NoError ? std::nullopt : std::optional(networkError(error)));
}

void FeedLoader::finish(const std::optional<UpdateError>& error) {
    if (const Completion completion = std::exchange(m_completion, {}))
        completion(error ? QByteArray() : m_data, error);
}

} // namespace platform
