#include "Platform/Core/RecentDocuments.h"

#include "Platform/Core/Action.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace platform {

namespace {

constexpr qsizetype longest = 10;
const auto key = QLatin1StringView("RecentDocuments/urls");

bool isLocalFile(const QUrl& url) {
    return url.isValid() && url.isLocalFile() && !url.fileName().isEmpty();
}

} // namespace

RecentDocuments& RecentDocuments::shared() {
    static QPointer<RecentDocuments> documents;
    if (!documents) {
        documents = new RecentDocuments(std::make_unique<QSettings>());
        documents->setParent(QCoreApplication::instance());
        setDocumentController(documents);
    }
    return *documents;
}

RecentDocuments::RecentDocuments(std::unique_ptr<QSettings> settings) : m_settings(std::move(settings)) {}

QList<QUrl> RecentDocuments::urls() const {
    m_settings->sync(); // another instance may have changed the list
    QList<QUrl> urls;
    const auto texts = m_settings->value(key).toStringList();
    for (const QString& text : texts) {
        const QUrl url(text, QUrl::StrictMode);
        if (isLocalFile(url) && !urls.contains(url) && urls.size() < longest)
            urls << url;
    }
    return urls;
}

void RecentDocuments::note(const QUrl& url) {
    if (!isLocalFile(url))
        return;
    const QUrl plain = url.adjusted(QUrl::NormalizePathSegments);
    auto all = urls();
    all.removeAll(plain);
    all.prepend(plain);
    store(all.first(std::min(all.size(), longest)));
}

void RecentDocuments::clear() {
    store({});
}

void RecentDocuments::store(const QList<QUrl>& urls) {
    QStringList texts;
    for (const QUrl& url : urls)
        texts << url.toString(QUrl::FullyEncoded);
    m_settings->setValue(key, texts);
    m_settings->sync();
    Q_EMIT changed();
}

bool RecentDocuments::open(const QUrl& url) {
    const bool isOpen = opener ? opener(url) : QDesktopServices::openUrl(url);
    if (isOpen)
        note(url);
    return isOpen;
}

bool RecentDocuments::validateMenuItem(QObject*) const {
    return !urls().isEmpty();
}

void RecentDocuments::clearRecentDocuments(QObject*) {
    clear();
}

} // namespace platform
