#include "Tidepool/Views/StyledScrollBar.h"

#include "Platform/Graphics/DevicePixels.h"
#include "Platform/Graphics/ReducedMotion.h"
#include "Tidepool/Styles/ScrollBarStyle.h"
#include "Tidepool/Views/ScrollBarGeometry.h"

#include <QAbstractScrollArea>
#include <QContextMenuEvent>
#include <QHoverEvent>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>
#include <chrono>

namespace tidepool {

namespace {

using namespace std::chrono_literals;

constexpr auto idleTime = 1000ms;
constexpr auto fadeTime = 250ms;
constexpr qreal inset = 3;
constexpr qreal insetUnderPointer = 2; // the knob grows where it can be taken
constexpr int nearness = 24;           // in points

/// On whole pixels.
void fillCapsule(QPainter& painter, const QRectF& frame, const QColor& color) {
    const QRectF rect(platform::onDevicePixel(painter, frame.topLeft()),
                      platform::onDevicePixel(painter, frame.bottomRight()));
    const qreal radius = std::min(rect.width(), rect.height()) / 2;
    painter.setBrush(color);
    painter.drawRoundedRect(rect, radius, radius);
}

} // namespace

StyledScrollBar::StyledScrollBar(Qt::Orientation orientation, QWidget* parent)
    : QScrollBar(orientation, parent) {
    setStyle(&ScrollBarGeometry::shared());
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setMouseTracking(true);
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleTime);
    connect(&m_idle, &QTimer::timeout, this, &StyledScrollBar::fade);
    m_fading.setDuration(static_cast<int>(std::chrono::milliseconds(fadeTime).count()));
    m_fading.setStartValue(1.0);
    m_fading.setEndValue(0.0);
    connect(&m_fading, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setVisibility(value.toReal()); });
    platform::prefersReducedMotion(); // so that the desktop has answered when it fades
}

QSize StyledScrollBar::sizeHint() const {
    const int length = 2 * ScrollBarGeometry::shortestKnob;
    return orientation() == Qt::Vertical ? QSize(thickness, length) : QSize(length, thickness);
}

bool StyledScrollBar::isInUse() const {
    return isSliderDown() || underMouse();
}

void StyledScrollBar::setVisibility(qreal visibility) {
    m_visibility = visibility;
    update();
}

void StyledScrollBar::flash() {
    m_fading.stop();
    setVisibility(1);
    hideLater();
}

void StyledScrollBar::hideLater() {
    if (isInUse())
        m_idle.stop();
    else
        m_idle.start();
}

void StyledScrollBar::fade() {
    if (isInUse())
        return;
    if (platform::prefersReducedMotion())
        setVisibility(0);
    else
        m_fading.start();
}

void StyledScrollBar::watch(QWidget& view) {
    view.setAttribute(Qt::WA_Hover); // whether or not it tracks the pointer
    view.installEventFilter(this);
}

bool StyledScrollBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::HoverMove) {
        const QPointF position = static_cast<QHoverEvent*>(event)->position();
        const QPoint here = mapFromGlobal(static_cast<QWidget*>(watched)->mapToGlobal(position)).toPoint();
        if (rect().adjusted(-nearness, -nearness, nearness, nearness).contains(here))
            flash();
    }
    return QScrollBar::eventFilter(watched, event);
}

bool StyledScrollBar::event(QEvent* event) {
    const bool isHandled = QScrollBar::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        flash();
        break;
    default:
        break;
    }
    return isHandled;
}

void StyledScrollBar::sliderChange(SliderChange change) {
    QScrollBar::sliderChange(change);
    if (isVisible() && (change == SliderValueChange || change == SliderRangeChange))
        flash();
}

void StyledScrollBar::showEvent(QShowEvent* event) {
    QScrollBar::showEvent(event);
    flash();
}

/// The desktop's menu would bring its own look, and nothing that the pointer cannot do.
void StyledScrollBar::contextMenuEvent(QContextMenuEvent* event) {
    event->ignore();
}

void StyledScrollBar::paintEvent(QPaintEvent*) {
    if (m_visibility <= 0 || !isEnabled() || minimum() == maximum())
        return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF knob(
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this));
    const auto& colors = m_style.get<ScrollBarStyle>(this);
    const auto inside = [&](const QRectF& rect, qreal distance) {
        return rect.adjusted(distance, distance, -distance, -distance);
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setOpacity(m_visibility);
    if (isInUse())
        fillCapsule(painter, inside(QRectF(rect()), insetUnderPointer), colors.slotColor());
    const QColor color = isSliderDown() ? colors.pressedKnobColor()
                         : underMouse() ? colors.hoveredKnobColor()
                                        : colors.knobColor();
    fillCapsule(painter, inside(knob, isInUse() ? insetUnderPointer : inset), color);
}

void setStyledScrollBars(QAbstractScrollArea& area) {
    auto* const vertical = new StyledScrollBar(Qt::Vertical);
    auto* const horizontal = new StyledScrollBar(Qt::Horizontal);
    area.setVerticalScrollBar(vertical);
    area.setHorizontalScrollBar(horizontal);
    vertical->watch(*area.viewport());
    horizontal->watch(*area.viewport());
    area.setCornerWidget(new QWidget); // in place of the desktop's
}

} // namespace tidepool
