#include "Platform/Controls/MenuItemPainter.h"

#include "Platform/Graphics/SystemFont.h"

#include <QFontMetrics>
#include <QPainter>
#include <QStyleOptionMenuItem>

#include <algorithm>

namespace platform {

namespace {

constexpr int itemHeight = 26;
constexpr int separatorHeight = 9;
constexpr int sectionHeaderHeight = 26;
constexpr int padding = 10;
constexpr int markWidth = 16;
constexpr int iconGap = 8;
constexpr int arrowWidth = 16;
constexpr int keyGap = 28;
constexpr int longestText = 400;
constexpr qreal selectionRadius = 5;
constexpr int singleLine = Qt::AlignVCenter | Qt::TextSingleLine;

QFont sectionHeaderFont() {
    return systemFont(11, QFont::DemiBold);
}

QPen roundPen(const QColor& color, qreal width) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// The text of an action as it is read: with the letters for the keyboard unmarked.
QString withoutMnemonics(const QString& text) {
    QString plain;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'&' && i + 1 < text.size())
            ++i;
        plain += text[i];
    }
    return plain;
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
        return {metrics.horizontalAdvance(withoutMnemonics(m_item.text)) + 2 * padding, sectionHeaderHeight};
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
        paintSeparator(painter);
    } else {
        paintSelection(painter);
        paintMark(painter);
        paintIcon(painter);
        paintTexts(painter);
        paintArrow(painter);
    }
}

void MenuItemPainter::paintSeparator(QPainter& painter) const {
    QColor color = m_item.palette.color(QPalette::WindowText);
    color.setAlpha(32);
    painter.fillRect(
        QRectF(m_item.rect.left() + padding, m_item.rect.center().y(), m_item.rect.width() - 2 * padding, 1),
        color);
}

void MenuItemPainter::paintSectionHeader(QPainter& painter) const {
    painter.setFont(sectionHeaderFont());
    painter.setPen(m_item.palette.color(QPalette::PlaceholderText));
    painter.drawText(m_item.rect.adjusted(padding, 2, -padding, 0), Qt::AlignLeft | singleLine,
                     withoutMnemonics(m_item.text));
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
    const QPointF center(m_item.rect.left() + padding + 4.5, m_item.rect.top() + m_item.rect.height() / 2.0);
    painter.setPen(roundPen(titleColor(), 1.6));
    painter.setBrush(Qt::NoBrush);
    if (isMixed)
        painter.drawLine(center - QPointF(3.5, 0), center + QPointF(3.5, 0));
    else
        painter.drawPolyline(QPolygonF{
            {center + QPointF(-3.8, 0.4), center + QPointF(-1.2, 3.2), center + QPointF(3.8, -3.4)}});
}

void MenuItemPainter::paintIcon(QPainter& painter) const {
    const int left = m_item.rect.left() + titleInset() - iconGap - iconSize;
    const QRect place(left, m_item.rect.top() + (m_item.rect.height() - iconSize) / 2, iconSize, iconSize);
    const auto mode = !isEnabled() ? QIcon::Disabled : isSelected() ? QIcon::Selected : QIcon::Normal;
    m_item.icon.paint(&painter, place, Qt::AlignCenter, mode);
}

void MenuItemPainter::paintTexts(QPainter& painter) const {
    const bool hasArrow = m_item.menuItemType == QStyleOptionMenuItem::SubMenu;
    const QRect line = m_item.rect.adjusted(titleInset(), 0, -padding - (hasArrow ? arrowWidth : 0), 0);
    const QString keys = m_item.text.section(u'\t', 1);
    painter.setFont(m_item.font);
    painter.setPen(quietColor());
    painter.drawText(line, Qt::AlignRight | singleLine, keys);
    const int keysWidth = keys.isEmpty() ? 0 : QFontMetrics(m_item.font).horizontalAdvance(keys) + keyGap;
    painter.setPen(titleColor());
    painter.drawText(
        line, Qt::AlignLeft | singleLine,
        elided(withoutMnemonics(m_item.text.section(u'\t', 0, 0)), line.width() - keysWidth, m_item.font));
}

void MenuItemPainter::paintArrow(QPainter& painter) const {
    if (m_item.menuItemType != QStyleOptionMenuItem::SubMenu)
        return;
    const QPointF tip(m_item.rect.right() - padding + 1.5, m_item.rect.top() + m_item.rect.height() / 2.0);
    painter.setPen(roundPen(quietColor(), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{{tip + QPointF(-3.5, -3.5), tip, tip + QPointF(-3.5, 3.5)}});
}

} // namespace platform
