#pragma once

#include "Platform/Updates/UpdateError.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QPointer>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkReply;

namespace platform {

/// Loads an update feed over https, also where the server sends it elsewhere, and no more of it than a feed
/// may have. Main thread.
class FeedLoader : public QObject {
public:
    /// `error` is empty if all went well.
    using Completion = std::function<void(const QByteArray& data, const std::optional<UpdateError>& error)>;

    /// Calls `completion` once, after this call has returned, unless `cancel` is called first. One at a time.
    void load(const QUrl& url, Completion completion);

    /// Ends a running load without calling its completion.
    void cancel();

private:
    void read();
    void finishReply();
    void finish(const std::optional<UpdateError>& error);

    QNetworkAccessManager m_manager;
    QPointer<QNetworkReply> m_reply;
    QByteArray m_data;
    Completion m_completion;
};

} // namespace platform
