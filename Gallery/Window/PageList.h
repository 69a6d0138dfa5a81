#pragma once

#include "Gallery/GalleryPage.h"

#include <QWidget>

#include <vector>

class QLabel;
class QListView;
class QStackedWidget;
class QStandardItemModel;

namespace tidepool {
class StyledSearchField;
}

namespace gallery {

class PageFilter;

/// The list of pages with a search field over it. While a person types there, the arrow keys move in the
/// list; Escape clears the search.
class PageList : public QWidget {
    Q_OBJECT

public:
    explicit PageList(const std::vector<GalleryPage>& pages, QWidget* parent = nullptr);

    /// By its number; -1 while no page is found.
    int currentPage() const;
    void setCurrentPage(int page);

    /// Puts the keyboard on the search field, with its text selected.
    void beginSearch();

Q_SIGNALS:
    void currentPageChanged(int page);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeSearch();
    void makeList(const std::vector<GalleryPage>& pages);
    void search(const QString& text);

    tidepool::StyledSearchField* m_search;
    QStackedWidget* m_results;
    QListView* m_list;
    QLabel* m_nothing;
    QStandardItemModel* m_pages;
    PageFilter* m_found;
    bool m_isMoving = false;
};

} // namespace gallery
