#include "Platform/Controls/MenuItemPainter.h"

#include "Platform/Graphics/Pens.h"
#include "Platform/Graphics/PreparedText.h"
#include "Platform/Graphics/SystemFont.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace platform {

namespace {

constexpr int separatorHeight = 9;
constexpr int sectionHeaderHeight = 26;
constexpr int markWidth = 16;
constexpr int iconGap = 8;
constexpr int arrowWidth = 16;
constexpr int keyGap = 28;
constexpr int longestText = 400;
constexpr qreal selectionRadius = 5;

QFont sectionHeaderFont() {
    return systemFont(11, QFont::DemiBold);
}

QString elided(const QString& text, int width, const QFont& font) {
    const QFontMetrics metrics(font);
    return metrics.horizontalAdvance(text) > width ? metrics.elidedText(text, Qt::ElideMiddle, width) : text;
}

} // namespace

bool MenuItemPainter::isSeparator() const {
    return m_item.menuItemType == QStyleOptionMenuItem::Separator;
}

bool MenuItemPainter::isSectionHeader() const {
    return isSeparator() && !m_item.text.isEmpty();
}

bool MenuItemPainter::isEnabled() const {
    return (m_item.state & QStyle::State_Enabled) != 0;
}

bool MenuItemPainter::isSelected() const {
    return isEnabled() && (m_item.state & QStyle::State_Selected) != 0;
}

int MenuItemPainter::titleInset(bool hasMarks, bool hasIcons) {
    return padding + (hasMarks ? markWidth : 0) + (hasIcons ? iconSize + iconGap : 0);
}

int MenuItemPainter::titleInset() const {
    return titleInset(m_item.menuHasCheckableItems, m_item.maxIconWidth > 0);
}

QSize MenuItemPainter::size(QSize text) const {
    if (isSectionHeader()) {
        const QFontMetrics metrics(sectionHeaderFont());
        return {metrics.horizontalAdvance(withoutMnemonic(m_item.text).text) + 2 * padding,
                sectionHeaderHeight};
    }
    if (isSeparator())
        return {2 * padding, separatorHeight};
    const bool hasArrow = m_item.menuItemType == QStyleOptionMenuItem::SubMenu;
    const int behind = (m_item.text.contains(u'\t') ? keyGap : 0) + (hasArrow ? arrowWidth : 0) + padding;
    return {titleInset() + std::min(text.width(), longestText) + behind, itemHeight};
}

void MenuItemPainter::paint(QPainter& painter) const {
    if (isSectionHeader()) {
        paintSectionHeader(painter);
    } else if (isSeparator()) {
        paintLine(painter, m_item.rect, m_item.palette);
    } else {
        paintSelection(painter);
        paintMark(painter);
        paintIcon(painter);
        paintTexts(painter);
        paintArrow(painter);
    }
}

/// A part of the item, `left` from where lines begin, over the item's whole height.
QRect MenuItemPainter::place(int left, int width) const {
    const QRect place(m_item.rect.left() + left, m_item.rect.top(), width, m_item.rect.height());
    return QStyle::visualRect(m_item.direction, m_item.rect, place);
}

void MenuItemPainter::drawLine(QPainter& painter, const QRect& place, Qt::Alignment alignment,
                               const QString& text) const {
    alignment = QStyle::visualAlignment(m_item.direction, alignment | Qt::AlignVCenter);
    painter.drawText(place, static_cast<int>(alignment) | Qt::TextSingleLine, text);
}

void MenuItemPainter::paintLine(QPainter& painter, const QRect& rect, const QPalette& palette) {
    QColor color = palette.color(QPalette::WindowText);
    color.setAlpha(32);
    const QRect line = rect.adjusted(padding, 0, -padding, 0);
    painter.fillRect(QRect(line.left(), line.center().y(), line.width(), 1), color);
}

void MenuItemPainter::paintSectionHeader(QPainter& painter) const {
    painter.setFont(sectionHeaderFont());
    painter.setPen(m_item.palette.color(QPalette::PlaceholderText));
    drawLine(painter, m_item.rect.adjusted(padding, 2, -padding, 0), Qt::AlignLeft,
             withoutMnemonic(m_item.text).text);
}

void MenuItemPainter::paintSelection(QPainter& painter) const {
    if (!isSelected())
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_item.palette.highlight());
    painter.drawRoundedRect(m_item.rect, selectionRadius, selectionRadius);
}

QColor MenuItemPainter::titleColor() const {
    const auto role = isSelected() ? QPalette::HighlightedText : QPalette::WindowText;
    return m_item.palette.color(isEnabled() ? QPalette::Active : QPalette::Disabled, role);
}

QColor MenuItemPainter::quietColor() const {
    if (!isEnabled())
        return titleColor();
    QColor color = m_item.palette.color(isSelected() ? QPalette::HighlightedText : QPalette::PlaceholderText);
    if (isSelected())
        color.setAlphaF(0.75F);
    return color;
}

void MenuItemPainter::paintMark(QPainter& painter) const {
    const bool isMixed = (m_item.state & QStyle::State_NoChange) != 0;
    if (!isMixed && (m_item.checkType == QStyleOptionMenuItem::NotCheckable || !m_item.checked))
        return;
    const QPointF center = QRectF(place(padding, 9)).center();
    painter.setPen(roundPen(titleColor(), 1.6));
    painter.setBrush(Qt::NoBrush);
    if (isMixed)
        painter.drawLine(center - QPointF(3.5, 0), center + QPointF(3.5, 0));
    else
        painter.drawPolyline(QPolygonF{
            {center + QPointF(-3.8, 0.4), center + QPointF(-1.2, 3.2), center + QPointF(3.8, -3.4)}});
}

void MenuItemPainter::paintIcon(QPainter& painter) const {
    const auto mode = !isEnabled() ? QIcon::Disabled : isSelected() ? QIcon::Selected : QIcon::Normal;
    const QRect column = place(titleInset() - iconGap - iconSize, iconSize);
    const int top = column.top() + (column.height() - iconSize) / 2;
    m_item.icon.paint(&painter, QRect(column.left(), top, iconSize, iconSize), Qt::AlignCenter, mode);
}

void MenuItemPainter::paintTexts(QPainter& painter) const {
    const bool hasArrow = m_item.menuItemType == QStyleOptionMenuItem::SubMenu;
    const int behind = padding + (hasArrow ? arrowWidth : 0);
    const QRect line = place(titleInset(), m_item.rect.width() - titleInset() - behind);
    const QString keys = m_item.text.section(u'\t', 1);
    const int keysWidth = keys.isEmpty() ? 0 : QFontMetrics(m_item.font).horizontalAdvance(keys) + keyGap;
    const QString title = withoutMnemonic(m_item.text.section(u'\t', 0, 0)).text;
    painter.setFont(m_item.font);
    painter.setPen(quietColor());
    drawLine(painter, line, Qt::AlignRight, keys);
    painter.setPen(titleColor());
    drawLine(painter, line, Qt::AlignLeft, elided(title, line.width() - keysWidth, m_item.font));
}

void MenuItemPainter::paintArrow(QPainter& painter) const {
    if (m_item.menuItemType != QStyleOptionMenuItem::SubMenu)
        return;
    const QPointF center = QRectF(place(m_item.rect.width() - padding - 4, 4)).center();
    const qreal reach = m_item.direction == Qt::LeftToRight ? 1.75 : -1.75;
    painter.setPen(roundPen(quietColor(), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{
        {center + QPointF(-reach, -3.5), center + QPointF(reach, 0), center + QPointF(-reach, 3.5)}});
}

} // namespace platform
