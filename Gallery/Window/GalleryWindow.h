#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

#include <vector>

namespace gallery {

class PageList;
class PagePreview;
class SettingsBar;

/// The window of the gallery: the list of pages at the side, the settings above, the page.
class GalleryWindow : public QWidget {
    Q_OBJECT

public:
    /// `pages`, at least one, must outlive the window.
    explicit GalleryWindow(const std::vector<GalleryPage>& pages);

    QString currentTitle() const;

    /// Nothing happens if there is no page of that title.
    void showPage(const QString& title);

private:
    void addShortcuts();
    void showCurrentPage();

    const std::vector<GalleryPage>& m_pages;
    PageList* m_list;
    SettingsBar* m_settings;
    PagePreview* m_preview;
    int m_current = 0;
};

} // namespace gallery
