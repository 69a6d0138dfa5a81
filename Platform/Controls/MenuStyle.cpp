#include "Platform/Controls/MenuStyle.h"

#include "Platform/Core/WindowSystem.h"
#include "Platform/Graphics/SystemFont.h"

#include <QMenu>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

namespace platform {

namespace {

constexpr int itemHeight = 28;
constexpr int separatorHeight = 9;
constexpr int itemPadding = 12;
constexpr int panelMargin = 5;
constexpr qreal panelRadius = 9;
constexpr qreal itemRadius = 6;

void drawSeparator(QPainter& painter, const QStyleOptionMenuItem& item) {
    const qreal y = item.rect.center().y() + 0.5;
    painter.setPen(QColor(255, 255, 255, 30));
    painter.drawLine(QPointF(item.rect.left() + itemPadding, y), QPointF(item.rect.right() - itemPadding, y));
}

void drawItem(QPainter& painter, const QStyleOptionMenuItem& item) {
    const bool isEnabled = (item.state & QStyle::State_Enabled) != 0;
    const bool isSelected = isEnabled && (item.state & QStyle::State_Selected) != 0;
    const auto group = isEnabled ? QPalette::Active : QPalette::Disabled;
    if (isSelected) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(item.palette.highlight());
        painter.drawRoundedRect(item.rect, itemRadius, itemRadius);
    }
    const QRect line = item.rect.adjusted(itemPadding, 0, -itemPadding, 0);
    const auto role = isSelected ? QPalette::HighlightedText : QPalette::WindowText;
    painter.setFont(item.font);
    painter.setPen(item.palette.color(group, role));
    const QString title = item.text.section(u'\t', 0, 0);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, title);
    if (!isSelected)
        painter.setPen(item.palette.color(group, QPalette::PlaceholderText));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, item.text.section(u'\t', 1));
}

} // namespace

void MenuStyle::apply(QMenu& menu) {
    auto* const style = new MenuStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    style->setParent(&menu);
    menu.setStyle(style);
    menu.setFont(systemFont(13));
    if (!isCompositing())
        return;
    menu.setWindowFlag(Qt::FramelessWindowHint);
    menu.setAttribute(Qt::WA_TranslucentBackground);
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element != PE_PanelMenu && element != PE_FrameMenu) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    if (element == PE_FrameMenu)
        return; // the panel has its own edge
    const bool isRound = widget != nullptr && widget->testAttribute(Qt::WA_TranslucentBackground);
    const qreal radius = isRound ? panelRadius : 0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QColor(255, 255, 255, 36));
    painter->setBrush(option->palette.window());
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter->restore();
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuEmptyArea)
        return;
    if (element != CE_MenuItem || item == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (item->menuItemType == QStyleOptionMenuItem::Separator)
        drawSeparator(*painter, *item);
    else
        drawItem(*painter, *item);
    painter->restore();
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || item == nullptr)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    constexpr int shortcutGap = 28;
    const bool isSeparator = item->menuItemType == QStyleOptionMenuItem::Separator;
    return {size.width() + 2 * itemPadding + shortcutGap, isSeparator ? separatorHeight : itemHeight};
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
        return 0;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return panelMargin;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace platform
