#include "Platform/Controls/ListPopup.h"

#include "Platform/Controls/ListView.h"
#include "Platform/Controls/MenuItemPainter.h"
#include "Platform/Controls/MenuStyle.h"

#include <QAbstractItemModel>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>
#include <QVBoxLayout>

#include <algorithm>

namespace platform {

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
