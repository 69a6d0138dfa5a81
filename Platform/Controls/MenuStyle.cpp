#include "Platform/Controls/MenuStyle.h"

#include "Platform/Controls/MenuItemPainter.h"
#include "Platform/Core/WindowSystem.h"
#include "Platform/Graphics/SystemFont.h"

#include <QApplication>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>

#include <algorithm>
#include <functional>

namespace platform {

namespace {

constexpr int panelMargin = 5;
constexpr qreal panelRadius = 9;

/// A little nearer to the light than the window below.
QColor panelColor(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor button = palette.color(QPalette::Button);
    const QColor base = palette.color(QPalette::Base);
    const QColor& lighter = button.lightnessF() > base.lightnessF() ? button : base;
    return QColor::fromRgbF((window.redF() + lighter.redF()) / 2, (window.greenF() + lighter.greenF()) / 2,
                            (window.blueF() + lighter.blueF()) / 2);
}

} // namespace

MenuStyle& MenuStyle::shared() {
    static QPointer<MenuStyle> style;
    if (!style) {
        style = new MenuStyle(QStyleFactory::create(QStringLiteral("Fusion")));
        style->setParent(qApp);
    }
    return *style;
}

void MenuStyle::apply(QMenu& menu) {
    menu.setStyle(&shared());
    menu.setFont(systemFont(13));
    if (!isCompositing())
        return;
    menu.setWindowFlag(Qt::FramelessWindowHint);
    menu.setAttribute(Qt::WA_TranslucentBackground);
}

int MenuStyle::titleInset(const QMenu& menu) {
    const auto items = menu.actions();
    const bool hasMarks = std::any_of(items.begin(), items.end(), std::mem_fn(&QAction::isCheckable));
    const bool hasIcons =
        std::any_of(items.begin(), items.end(), [](const QAction* item) { return !item->icon().isNull(); });
    return MenuItemPainter::titleInset(hasMarks, hasIcons);
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
    QColor edge = option->palette.color(QPalette::WindowText);
    edge.setAlpha(40);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(panelColor(option->palette));
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
    MenuItemPainter(*item).paint(*painter);
    painter->restore();
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || item == nullptr)
        return QProxyStyle::sizeFromContents(type, option, size, widget);
    return MenuItemPainter(*item).size(size);
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* result) const {
    switch (hint) {
    case SH_Menu_SupportsSections:
    case SH_Menu_Scrollable:
    case SH_Menu_SpaceActivatesItem:
        return 1;
    case SH_Menu_AllowActiveAndDisabled:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
        return 0;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return panelMargin;
    case PM_SmallIconSize:
        return MenuItemPainter::iconSize;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace platform
