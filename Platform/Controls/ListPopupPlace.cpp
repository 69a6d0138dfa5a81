// Where the window of a list opens and how large.

#include "Platform/Controls/ListPopup.h"
#include "Platform/Controls/ListView.h"
#include "Platform/Controls/MenuItemPainter.h"

#include <QAbstractItemModel>
#include <QScreen>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <functional>
#include <vector>

namespace platform {

namespace {

constexpr int longestTitle = 400;
constexpr int leastRowsInSight = 5;

} // namespace

/// Of many titles those are measured that have most letters.
int ListPopup::naturalWidth() const {
    constexpr std::ptrdiff_t measured = 64;
    std::vector<QString> titles;
    titles.reserve(static_cast<std::size_t>(rowCount()));
    for (int row = 0; row < rowCount(); ++row)
        titles.push_back(m_model.index(row, 0).data().toString());
    const auto last = titles.begin() + std::min(std::ssize(titles), measured);
    std::ranges::partial_sort(titles, last, std::greater(), &QString::size);
    const QFontMetrics metrics(font());
    int widest = 0;
    for (auto title = titles.begin(); title != last; ++title)
        widest = std::max(widest, metrics.horizontalAdvance(*title));
    const int margin = style()->pixelMetric(QStyle::PM_MenuHMargin, nullptr, this);
    return std::min(widest, longestTitle) + m_list->roomBesideTitles() + 2 * margin +
           m_list->verticalScrollBar()->sizeHint().width();
}

int ListPopup::heightOf(int rows) const {
    return rows * MenuItemPainter::itemHeight +
           2 * style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, this);
}

void ListPopup::fitToRows() {
    if (rowCount() == 0 || !m_view.isEnabled()) {
        close();
        return;
    }
    const QRect screen = m_view.screen()->availableGeometry();
    const int width = std::max(m_place.width(), std::min(naturalWidth(), screen.width()));
    QRect frame = m_rowsInSight > 0 ? frameBeside(screen) : frameOver(screen);
    frame.setWidth(width);
    frame.moveLeft(m_view.isRightToLeft() ? m_place.right() + 1 - width : m_place.left());
    frame.moveLeft(std::max(screen.left(), std::min(frame.left(), screen.right() + 1 - width)));
    showIn(frame);
}

QRect ListPopup::frameBeside(const QRect& screen) const {
    constexpr int gap = 1;
    const int below = screen.bottom() - m_place.bottom() - gap;
    const int above = m_place.top() - screen.top() - gap;
    const int wanted = heightOf(std::min(rowCount(), m_rowsInSight));
    const bool isBelow = wanted <= below || below >= above;
    const int height = std::min(wanted, isBelow ? below : above);
    return {0, isBelow ? m_place.bottom() + 1 + gap : m_place.top() - gap - height, 0, height};
}

/// As much of the whole list as the screen has room for, when the current row lies over the place.
QRect ListPopup::frameOver(const QRect& screen) const {
    const int whole = heightOf(rowCount());
    const int top = topOfWhole();
    const int least = std::min(whole, heightOf(leastRowsInSight));
    const int first = std::min(std::max(top, screen.top()), screen.bottom() + 1 - least);
    const int end = std::max(std::min(top + whole, screen.bottom() + 1), first + least);
    return {0, first, 0, end - first};
}

/// Where the list would begin if all of it were in sight.
int ListPopup::topOfWhole() const {
    const int row = std::max(currentRow(), 0);
    return m_place.center().y() - (heightOf(2 * row + 1) / 2);
}

void ListPopup::showIn(QRect frame) {
    const bool isOpening = !isVisible();
    if (isOpening) {
        setLayoutDirection(m_view.layoutDirection());
        m_list->begin();
    }
    setGeometry(frame);
    show(); // which gives the list its size
    m_list->doItemsLayout();
    if (m_rowsInSight == 0)
        m_list->verticalScrollBar()->setValue(frame.top() - topOfWhole());
    else if (isOpening && currentRow() >= 0)
        m_list->scrollTo(m_list->currentIndex(), QListView::PositionAtCenter);
}

} // namespace platform
