#pragma once

#include <QStyledItemDelegate>

namespace gallery {

/// Draws the items of the list of pages; the first of a group has the group's heading over it.
class PageDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace gallery
