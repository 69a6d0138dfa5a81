#pragma once

#include <QList>
#include <QObject>
#include <QSettings>
#include <QUrl>

#include <functional>
#include <memory>

namespace platform {

/// The documents that the user opened last: local files, the latest first, ten at most. They are kept in the
/// application's settings, for all its instances and its next start. Main thread.
class RecentDocuments : public QObject {
    Q_OBJECT

public:
    /// The application's list. Answers `clearRecentDocuments` after everybody else.
    static RecentDocuments& shared();

    /// A list kept in `settings`.
    explicit RecentDocuments(std::unique_ptr<QSettings> settings);

    /// Opens the document and shows it; false if it could not. Without one the desktop opens documents.
    std::function<bool(const QUrl& url)> opener;

    /// Whatever else the settings hold there is left out.
    QList<QUrl> urls() const;

    /// Puts `url` first. Ignores what is no local file.
    void note(const QUrl& url);

    void clear();

    /// Opens the document, and notes it if that succeeded.
    bool open(const QUrl& url);

    /// For a menu: there is nothing to clear in an empty list.
    Q_INVOKABLE bool validateMenuItem(QObject* item) const;

public Q_SLOTS:
    void clearRecentDocuments(QObject* sender);

Q_SIGNALS:
    /// This object has changed the list.
    void changed();

private:
    void store(const QList<QUrl>& urls);

    std::unique_ptr<QSettings> m_settings;
};

} // namespace platform
