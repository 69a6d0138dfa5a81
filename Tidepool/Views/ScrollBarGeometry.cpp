#include "Tidepool/Views/ScrollBarGeometry.h"

#include "Tidepool/Views/StyledScrollBar.h"

#include <QApplication>
#include <QPointer>
#include <QStyleOptionSlider>

#include <algorithm>

namespace tidepool {

namespace {

/// The knob within the slot as it lies from left to right: as long as the page is of the whole.
QRect knobRect(const QStyleOptionSlider& option) {
    const QRect slot = option.rect;
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    const int room = isHorizontal ? slot.width() : slot.height();
    const qint64 whole = qint64(option.maximum) - option.minimum + option.pageStep;
    const int share = whole > 0 ? static_cast<int>(room * qint64(option.pageStep) / whole) : room;
    const int length = std::clamp(share, std::min(ScrollBarGeometry::shortestKnob, room), room);
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      room - length, option.upsideDown);
    return isHorizontal ? QRect(slot.left() + start, slot.top(), length, slot.height())
                        : QRect(slot.left(), slot.top() + start, slot.width(), length);
}

QRect partRect(const QStyleOptionSlider& option, QStyle::SubControl part) {
    const QRect slot = option.rect;
    const QRect knob = knobRect(option);
    const bool isHorizontal = option.orientation == Qt::Horizontal;
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return slot;
    case QStyle::SC_ScrollBarSlider:
        return knob;
    case QStyle::SC_ScrollBarSubPage:
        return {slot.topLeft(),
                isHorizontal ? QPoint(knob.left() - 1, slot.bottom()) : QPoint(slot.right(), knob.top() - 1)};
    case QStyle::SC_ScrollBarAddPage:
        return {isHorizontal ? QPoint(knob.right() + 1, slot.top()) : QPoint(slot.left(), knob.bottom() + 1),
                slot.bottomRight()};
    default:
        return {};
    }
}

} // namespace

ScrollBarGeometry& ScrollBarGeometry::shared() {
    static QPointer<ScrollBarGeometry> style;
    if (!style) {
        style = new ScrollBarGeometry;
        style->setParent(QCoreApplication::instance());
    }
    return *style;
}

int ScrollBarGeometry::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                                 QStyleHintReturn* result) const {
    switch (hint) {
    case SH_ScrollBar_MiddleClickAbsolutePosition:
        return 1;
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier) ? 1 : 0;
    case SH_ScrollBar_Transient: // the bars fade by themselves
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
}

int ScrollBarGeometry::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                   const QWidget* widget) const {
    if (metric == PM_ScrollBarExtent)
        return StyledScrollBar::thickness;
    return metric == PM_ScrollBarSliderMin ? shortestKnob : QProxyStyle::pixelMetric(metric, option, widget);
}

QRect ScrollBarGeometry::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                        SubControl part, const QWidget* widget) const {
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || slider == nullptr)
        return QProxyStyle::subControlRect(control, option, part, widget);
    const QRect rect = partRect(*slider, part);
    return rect.isEmpty() ? QRect() : visualRect(slider->direction, slider->rect, rect);
}

} // namespace tidepool
