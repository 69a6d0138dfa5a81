#pragma once

#include "Tidepool/Menus/RecentDocumentsMenuDelegate.h"

#include <QTemporaryDir>

#include <optional>

namespace gallery {

/// Recent documents to try: files that are made when their menu is opened first, and go with this object, as
/// does the list of them.
class DemoDocuments : public tidepool::RecentDocumentsMenuDelegate {
    Q_OBJECT

public:
    ~DemoDocuments() override;

    void menuNeedsUpdate(platform::Menu& menu) override;

Q_SIGNALS:
    void opened(const QString& name);

private:
    void make();

    std::optional<QTemporaryDir> m_folder;
};

} // namespace gallery
