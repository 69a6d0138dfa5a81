#include "Platform/Controls/ListPopup.h"

#include "Platform/Controls/ListView.h"
#include "Platform/Controls/MenuItemPainter.h"
#include "Platform/Controls/MenuStyle.h"

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyleOption>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <vector>

namespace platform {

namespace {

constexpr int longestTitle = 400;
constexpr int leastRowsInSight = 5;

} // namespace

ListPopup::ListPopup(QAbstractItemModel& model, QWidget& view)
    : QFrame(&view, Qt::Popup), m_model(model), m_view(view), m_list(new ListView(*this)) {
    MenuStyle::apply(*this);
    setFocusPolicy(Qt::NoFocus);
    auto* const layout = new QVBoxLayout(this);
    const int margin = style()->pixelMetric(QStyle::PM_MenuVMargin, nullptr, this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(m_list);
    m_list->setModel(&model);
    view.installEventFilter(this);
    for (const auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&model, signal, this, &ListPopup::rowsChanged);
    connect(&model, &QAbstractItemModel::modelReset, this, &ListPopup::rowsChanged);
    m_refit.setSingleShot(true);
    connect(&m_refit, &QTimer::timeout, this, &ListPopup::fitToRows);
}

ListPopup::~ListPopup() = default;

int ListPopup::rowCount() const {
    return m_model.rowCount();
}

bool ListPopup::isChoice(int row) const {
    return row >= 0 && row < rowCount() && m_model.index(row, 0).flags().testFlag(Qt::ItemIsEnabled);
}

int ListPopup::currentRow() const {
    return m_list->currentIndex().row();
}

void ListPopup::setCurrentRow(int row) {
    m_list->setCurrentIndex(m_model.index(row, 0));
    if (row >= 0)
        m_list->scrollTo(m_list->currentIndex());
}

void ListPopup::setHasMarks(bool hasMarks) {
    m_list->setHasMarks(hasMarks);
}

/// Of many titles those are measured that have most letters.
int ListPopup::naturalWidth() const {
    constexpr std::ptrdiff_t measured = 64;
    std::vector<QString> titles;
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

void ListPopup::openOver(const QRect& place) {
    m_place = place;
    m_rowsInSight = 0;
    fitToRows();
}

void ListPopup::openBeside(const QRect& place, int rows) {
    m_place = place;
    m_rowsInSight = rows;
    fitToRows();
}

void ListPopup::rowsChanged() {
    if (isVisible())
        m_refit.start(0);
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

/// `from` inclusive.
void ListPopup::step(int from, int by) {
    for (int row = from; row >= 0 && row < rowCount(); row += by)
        if (isChoice(row)) {
            setCurrentRow(row);
            return;
        }
}

void ListPopup::stepFarther(int by) {
    const int wanted = std::clamp(currentRow() + by, 0, rowCount() - 1);
    step(wanted, by > 0 ? 1 : -1);
}

void ListPopup::choose(int row) {
    if (!isChoice(row))
        return;
    // Whoever hears of it may destroy the window, which is just handling input.
    const QPersistentModelIndex index(m_model.index(row, 0));
    close();
    QMetaObject::invokeMethod(
        this,
        [this, index] {
            if (index.isValid())
                Q_EMIT chosen(index.row());
        },
        Qt::QueuedConnection);
}

bool ListPopup::handleKey(const QKeyEvent& event) {
    const int page = std::max(1, m_list->viewport()->height() / MenuItemPainter::itemHeight - 1);
    const bool hasAlt = event.modifiers().testFlag(Qt::AltModifier);
    switch (event.key()) {
    case Qt::Key_Down:
        hasAlt ? void(close()) : step(currentRow() + 1, 1);
        return true;
    case Qt::Key_Up:
        hasAlt ? void(close()) : step(currentRow() < 0 ? rowCount() - 1 : currentRow() - 1, -1);
        return true;
    case Qt::Key_PageDown:
        stepFarther(page);
        return true;
    case Qt::Key_PageUp:
        stepFarther(-page);
        return true;
    case Qt::Key_Escape:
    case Qt::Key_F4:
        close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event.isAutoRepeat())
            return true; // still held from opening the window
        if (!isChoice(currentRow()))
            return false;
        choose(currentRow());
        return true;
    default:
        return false;
    }
}

void ListPopup::otherKey(QKeyEvent& event) {
    event.ignore();
}

void ListPopup::keyPressEvent(QKeyEvent* event) {
    if (!handleKey(*event))
        otherKey(*event);
}

bool ListPopup::eventFilter(QObject* watched, QEvent* event) {
    const bool isDisabled = event->type() == QEvent::EnabledChange && !m_view.isEnabled();
    if (watched == &m_view && (isDisabled || event->type() == QEvent::Hide))
        close();
    return QFrame::eventFilter(watched, event);
}

void ListPopup::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_PanelMenu, &option, &painter, this);
}

bool ListPopup::isOnlyClosedBy(QPoint press) const {
    return m_view.rect().contains(m_view.mapFromGlobal(press));
}

void ListPopup::mousePressEvent(QMouseEvent* event) {
    setAttribute(Qt::WA_NoMouseReplay, isOnlyClosedBy(event->globalPosition().toPoint()));
    QFrame::mousePressEvent(event);
}

void ListPopup::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    m_refit.stop();
    Q_EMIT closed();
}

} // namespace platform
