#include "Tidepool/Menus/RecentDocumentsMenuDelegate.h"

#include "Platform/Controls/FileIcon.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Core/RecentDocuments.h"

#include <QDir>
#include <QFileInfo>

#include <any>

namespace tidepool {

using platform::RecentDocuments;

void RecentDocumentsMenuDelegate::menuNeedsUpdate(platform::Menu& menu) {
    menu.removeAllItems();
    menu.setToolTipsVisible(true);
    const auto urls = RecentDocuments::shared().urls();
    for (const QUrl& url : urls) {
        const QString path = url.toLocalFile();
        if (!QFileInfo::exists(path))
            continue;
        platform::MenuItem& item = menu.addItem(url.fileName(), platform::Selector{"openRecentDocument"});
        item.target = this;
        item.representedObject = url;
        item.setIcon(platform::fileIcon(path));
        item.setToolTip(QDir::toNativeSeparators(path));
    }
    menu.addItem(platform::MenuItem::separator());
    menu.addItem(tr("Clear Recent Documents"), platform::Selector{"clearRecentDocuments"});
}

void RecentDocumentsMenuDelegate::menuNeedsUpdate(QObject* menu) {
    if (auto* const platformMenu = qobject_cast<platform::Menu*>(menu))
        menuNeedsUpdate(*platformMenu);
}

void RecentDocumentsMenuDelegate::openRecentDocument(QObject* sender) {
    const auto* const item = qobject_cast<platform::MenuItem*>(sender);
    const auto* const url = item != nullptr ? std::any_cast<QUrl>(&item->representedObject) : nullptr;
    if (url != nullptr)
        RecentDocuments::shared().open(QUrl(*url));
}

void RecentDocumentsMenuDelegate::clearRecentDocuments(QObject*) {
    RecentDocuments::shared().clear();
}

} // namespace tidepool
