#include "Platform/Controls/ListView.h"

#include "Platform/Controls/ListPopup.h"
#include "Platform/Controls/MenuItem.h"
#include "Platform/Controls/MenuItemPainter.h"
#include "Platform/Controls/MenuStyle.h"

#include <QAbstractItemDelegate>
#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace platform {

/// Draws a row as an item of a menu.
class ListView::Delegate : public QAbstractItemDelegate {
public:
    explicit Delegate(ListView& view) : QAbstractItemDelegate(&view), m_view(view) {}

    bool hasMarks = false;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        MenuItemPainter(item(option, index)).paint(*painter);
        if (index.data(ListPopup::beginsGroup).toBool())
            MenuItemPainter::paintLine(*painter, QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)),
                                       option.palette);
        painter->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, MenuItemPainter::itemHeight};
    }

private:
    QStyleOptionMenuItem item(const QStyleOptionViewItem& option, const QModelIndex& index) const {
        QStyleOptionMenuItem item;
        const QVariant mark = index.data(Qt::CheckStateRole);
        const bool isHeader = index.data(ListPopup::isHeader).toBool();
        item.rect = option.rect;
        item.direction = option.direction;
        item.palette = option.palette;
        item.font = m_view.font();
        item.text = MenuItem::plainText(index.data(Qt::DisplayRole).toString());
        item.icon = qvariant_cast<QIcon>(index.data(Qt::DecorationRole));
        item.menuItemType = isHeader ? QStyleOptionMenuItem::Separator : QStyleOptionMenuItem::Normal;
        item.checkType = hasMarks ? QStyleOptionMenuItem::NonExclusive : QStyleOptionMenuItem::NotCheckable;
        item.checked = mark.toInt() == Qt::Checked;
        item.menuHasCheckableItems = hasMarks;
        item.maxIconWidth = m_view.hasIcons() ? MenuItemPainter::iconSize : 0;
        item.state.setFlag(QStyle::State_Enabled, index.flags().testFlag(Qt::ItemIsEnabled));
        item.state.setFlag(QStyle::State_Selected, index == m_view.currentIndex());
        item.state.setFlag(QStyle::State_NoChange, mark.toInt() == Qt::PartiallyChecked);
        return item;
    }

    ListView& m_view;
};

ListView::ListView(ListPopup& popup) : QListView(&popup), m_popup(popup), m_delegate(new Delegate(*this)) {
    MenuStyle::applyToPart(*this);
    MenuStyle::applyToPart(*verticalScrollBar());
    setItemDelegate(m_delegate);
    setUniformItemSizes(true);
    setFrameShape(NoFrame);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setFocusPolicy(Qt::NoFocus);
    setAutoScroll(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    viewport()->setMouseTracking(true);
}

void ListView::setHasMarks(bool hasMarks) {
    m_delegate->hasMarks = hasMarks;
    viewport()->update();
}

bool ListView::hasIcons() const {
    constexpr int asked = 32; // the first ones speak for all
    for (int row = 0; row < std::min(asked, model()->rowCount(rootIndex())); ++row)
        if (model()->index(row, modelColumn(), rootIndex()).data(Qt::DecorationRole).isValid())
            return true;
    return false;
}

int ListView::roomBesideTitles() const {
    return MenuItemPainter::titleInset(m_delegate->hasMarks, hasIcons()) + MenuItemPainter::padding;
}

void ListView::begin() {
    m_openedAt = QCursor::pos();
    m_isReleaseMeant = false;
}

void ListView::follow(QPoint position) {
    const QModelIndex index = indexAt(position);
    if (index.isValid() && m_popup.isChoice(index.row()))
        setCurrentIndex(index);
}

void ListView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint way = event->globalPosition().toPoint() - m_openedAt;
    if (way.isNull())
        return; // the window has come under the pointer
    m_isReleaseMeant = m_isReleaseMeant || way.manhattanLength() > QApplication::startDragDistance();
    follow(event->position().toPoint());
}

void ListView::mousePressEvent(QMouseEvent* event) {
    m_isReleaseMeant = true;
    follow(event->position().toPoint());
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (m_isReleaseMeant && index.isValid() && viewport()->rect().contains(event->position().toPoint()))
        m_popup.choose(index.row());
}

void ListView::wheelEvent(QWheelEvent* event) {
    QListView::wheelEvent(event);
    follow(event->position().toPoint());
}

/// The list has not the keyboard, but what it leads to.
void ListView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    Q_EMIT m_popup.currentRowChanged(current.row());
    if (!current.isValid() || !isVisible())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(current.row());
    QAccessible::updateAccessibility(&event);
}

} // namespace platform
