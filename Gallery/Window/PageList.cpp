#include "Gallery/Window/PageList.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Window/PageDelegate.h"
#include "Gallery/Window/PageFilter.h"
#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Text/StyledSearchField.h"
#include "Tidepool/Views/StyledScrollBar.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <utility>

namespace gallery {

namespace {

constexpr int margin = 12;

bool movesInList(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
}

} // namespace

PageList::PageList(const std::vector<GalleryPage>& pages, QWidget* parent)
    : QWidget(parent),
      m_search(new tidepool::StyledSearchField),
      m_results(new QStackedWidget),
      m_list(new QListView),
      m_nothing(makeText({}, TextRole::body)),
      m_pages(new QStandardItemModel(this)),
      m_found(new PageFilter(this)) {
    setFixedWidth(220);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    makeSearch();
    makeList(pages);
    m_nothing->setContentsMargins(2 * margin, margin, margin, margin);
    m_nothing->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    m_results->addWidget(m_list);
    m_results->addWidget(m_nothing);
    auto* const searchMargins = new QVBoxLayout;
    searchMargins->setContentsMargins(margin, margin, margin, 4);
    searchMargins->addWidget(m_search);
    auto* const stack = new QVBoxLayout(this);
    stack->setContentsMargins({});
    stack->setSpacing(0);
    stack->addLayout(searchMargins);
    stack->addWidget(m_results, 1);
}

void PageList::makeSearch() {
    m_search->cell().setPlaceholderString(tr("Search"));
    m_search->setAccessibleName(tr("Search pages"));
    connect(m_search, &tidepool::StyledSearchField::textChanged, this, &PageList::search);
}

void PageList::makeList(const std::vector<GalleryPage>& pages) {
    for (const GalleryPage& page : pages) {
        auto* const item = new QStandardItem(page.title);
        item->setEditable(false);
        item->setData(page.group, PageFilter::groupRole);
        item->setData(QStringList{page.group, page.title, page.keywords.join(u' ')}.join(u' '),
                      PageFilter::searchedRole);
        m_pages->appendRow(item);
    }
    m_found->setSourceModel(m_pages);
    m_list->setModel(m_found);
    m_list->setItemDelegate(new PageDelegate(m_list));
    m_list->setAccessibleName(tr("Pages"));
    m_list->setFrameShape(QFrame::NoFrame);
    tidepool::setStyledScrollBars(*m_list);
    m_list->viewport()->setBackgroundRole(QPalette::AlternateBase);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] {
        if (currentPage() >= 0)
            Q_EMIT currentPageChanged(currentPage());
    });
}

int PageList::currentPage() const {
    return m_found->mapToSource(m_list->currentIndex()).row();
}

void PageList::setCurrentPage(int page) {
    m_list->setCurrentIndex(m_found->mapFromSource(m_pages->index(page, 0)));
}

void PageList::beginSearch() {
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->currentEditor()->selectAll();
}

void PageList::search(const QString& text) {
    m_found->setSearch(text);
    const bool isEmpty = m_found->rowCount() == 0;
    m_nothing->setText(tr("No page matches “%1”.").arg(text.simplified()));
    if (platform::FieldEditor* const editor = m_search->currentEditor())
        editor->setAccessibleDescription(isEmpty ? m_nothing->text() : QString());
    m_results->setCurrentWidget(isEmpty ? static_cast<QWidget*>(m_nothing) : m_list);
    if (!isEmpty && currentPage() < 0)
        m_list->setCurrentIndex(m_found->index(0, 0));
}

/// Those that the search field leaves over.
void PageList::keyPressEvent(QKeyEvent* event) {
    const bool isOnItsWayBack = std::exchange(m_isMoving, true);
    if (!isOnItsWayBack && movesInList(event->key()))
        QCoreApplication::sendEvent(m_list, event);
    else
        QWidget::keyPressEvent(event);
    m_isMoving = isOnItsWayBack;
}

} // namespace gallery
