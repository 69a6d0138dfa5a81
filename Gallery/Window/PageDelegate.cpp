#include "Gallery/Window/PageDelegate.h"

#include "Gallery/Layout/Text.h"
#include "Gallery/Window/PageFilter.h"
#include "Platform/Controls/FocusRing.h"
#include "Tidepool/Palette/TPColors.h"

#include <QPainter>

namespace gallery {

using tidepool::TPColorsAK;

namespace {

constexpr int itemHeight = 30;
constexpr int headingHeight = 32;
constexpr int side = 8;
constexpr int inset = 12;
constexpr qreal radius = 6;

bool beginsGroup(const QModelIndex& index) {
    const QModelIndex above = index.siblingAtRow(index.row() - 1);
    return !above.isValid() || above.data(PageFilter::groupRole) != index.data(PageFilter::groupRole);
}

} // namespace

QSize PageDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const {
    return {0, itemHeight + (beginsGroup(index) ? headingHeight : 0)};
}

void PageDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const QRect item = QRect(option.rect).adjusted(side, option.rect.height() - itemHeight, -side, 0);
    const QRect text = item.adjusted(inset, 0, -inset, 0);
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (beginsGroup(index)) {
        painter->setFont(textFont(TextRole::caption));
        painter->setPen(textColor(TextRole::caption));
        painter->drawText(text.translated(0, -itemHeight), Qt::AlignLeading | Qt::AlignVCenter,
                          index.data(PageFilter::groupRole).toString());
    }
    if (isSelected) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(TPColorsAK::grey20.color());
        painter->drawRoundedRect(item, radius, radius);
    }
    if (isSelected && (option.state & QStyle::State_HasFocus) != 0)
        platform::drawFocusRing(*painter, item, {.radius = radius});
    painter->setFont(textFont(TextRole::body));
    painter->setPen(isSelected ? TPColorsAK::grey100.color() : TPColorsAK::grey70.color());
    painter->drawText(text, Qt::AlignLeading | Qt::AlignVCenter, index.data().toString());
    painter->restore();
}

} // namespace gallery
