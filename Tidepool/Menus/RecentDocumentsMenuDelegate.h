#pragma once

#include "Platform/Controls/MenuDelegate.h"

namespace tidepool {

/// Fills a menu with the recent documents that still exist, and an item that clears them. Main thread.
class RecentDocumentsMenuDelegate : public platform::MenuDelegate {
    Q_OBJECT

public:
    RecentDocumentsMenuDelegate() = default;

    /// Replaces all items of `menu`.
    void menuNeedsUpdate(platform::Menu& menu) override;

public Q_SLOTS:
    /// The same, for a `platform::Menu`.
    void menuNeedsUpdate(QObject* menu);

    /// Opens the document at the URL that `sender`, a menu item, represents.
    void openRecentDocument(QObject* sender);
    void clearRecentDocuments(QObject* sender);
};

} // namespace tidepool
