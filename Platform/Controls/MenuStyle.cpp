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
constexpr int scrollBarWidth = 9;
constexpr int leastHandle = 24;

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

void MenuStyle::applyToPart(QWidget& part) {
    part.setStyle(&shared());
    part.setFont(systemFont(13));
}

void MenuStyle::apply(QWidget& menu) {
    applyToPart(menu);
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

/// A scroll bar is a handle alone, as long as what is in sight is of the whole.
QRect MenuStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr)
        return QProxyStyle::subControlRect(control, option, part, widget);
    if (part == SC_ScrollBarGroove)
        return bar->rect;
    const int length = bar->rect.height();
    const qint64 range = std::max<qint64>(1, qint64(bar->maximum) - bar->minimum + bar->pageStep);
    const int handle = std::max<int>(leastHandle, static_cast<int>(length * qint64(bar->pageStep) / range));
    const int top = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, length - handle,
                                            bar->upsideDown);
    switch (part) {
    case SC_ScrollBarSlider:
        return {bar->rect.left(), top, bar->rect.width(), handle};
    case SC_ScrollBarSubPage:
        return {bar->rect.left(), 0, bar->rect.width(), top};
    case SC_ScrollBarAddPage:
        return {bar->rect.left(), top + handle, bar->rect.width(), length - top - handle};
    default:
        return {};
    }
}

void MenuStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    if (control != CC_ScrollBar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    constexpr qreal thickness = 5;
    const bool isHeld = (option->state & State_Sunken) != 0;
    QRectF handle(subControlRect(control, option, SC_ScrollBarSlider, widget));
    handle.adjust((handle.width() - thickness) / 2, 1, -(handle.width() - thickness) / 2, -1);
    QColor color = option->palette.color(QPalette::WindowText);
    color.setAlpha(isHeld ? 130 : 80);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    painter->drawRoundedRect(handle, thickness / 2, thickness / 2);
    painter->restore();
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
    case PM_ScrollBarExtent:
        return scrollBarWidth;
    case PM_SmallIconSize:
        return MenuItemPainter::iconSize;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

} // namespace platform
