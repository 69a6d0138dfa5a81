#include "Gallery/Pages/DemoDocuments.h"

#include "Platform/Core/RecentDocuments.h"

#include <QFile>

namespace gallery {

using platform::RecentDocuments;

DemoDocuments::~DemoDocuments() {
    if (!m_folder)
        return;
    RecentDocuments::shared().clear();
    RecentDocuments::shared().opener = nullptr;
}

void DemoDocuments::make() {
    m_folder.emplace();
    for (const char16_t* const name : {u"Sketches.mid", u"Étude in E flat.mid", u"Nocturne.wav"}) {
        QFile file(m_folder->filePath(QString::fromUtf16(name)));
        if (file.open(QFile::WriteOnly))
            RecentDocuments::shared().note(QUrl::fromLocalFile(file.fileName()));
    }
    RecentDocuments::shared().opener = [this](const QUrl& url) {
        Q_EMIT opened(url.fileName());
        return true;
    };
}

void DemoDocuments::menuNeedsUpdate(platform::Menu& menu) {
    if (!m_folder)
        make();
    RecentDocumentsMenuDelegate::menuNeedsUpdate(menu);
}

} // namespace gallery
