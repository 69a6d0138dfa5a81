#include "Platform/Controls/PopoverWindow.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Core/WindowSystem.h"
#include "Platform/Graphics/DevicePixels.h"
#include "Platform/Graphics/DropShadow.h"
#include "Platform/Graphics/ReducedMotion.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto duration = 150ms;
constexpr qreal smallest = 0.94; // from where it grows
/// Room for the arrow and the shadow: whole pixels at every quarter of a scale.
constexpr int margin = 24;

class PopoverInterface : public QAccessibleWidget {
public:
    explicit PopoverInterface(PopoverWindow& window)
        : QAccessibleWidget(&window, QAccessible::AlertMessage) {}
};

} // namespace

PopoverWindow::PopoverWindow()
    : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint |
                           Qt::WindowDoesNotAcceptFocus) {
    installAccessibility<PopoverWindow, PopoverInterface>();
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground, isCompositing());
    setFocusPolicy(Qt::NoFocus);
    m_animation.setDuration(static_cast<int>(std::chrono::milliseconds(duration).count()));
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_animation, &QVariantAnimation::finished, this, [this] {
        setVisible(!m_isLeaving);
        endAnimation();
    });
    prefersReducedMotion(); // so that the desktop has answered when it appears
}

void PopoverWindow::setContent(QWidget* view) {
    delete m_content;
    m_content = view;
    view->setParent(this);
    view->show();
}

void PopoverWindow::setColors(const QColor& background, const QColor& edge) {
    m_background = background;
    m_edge = edge;
    m_frame = {};
    update();
}

void PopoverWindow::place(const PopoverPlacement& placement) {
    const QRect place = placement.bubble.adjusted(-margin, -margin, margin, margin);
    const PopoverPlacement own = placement.translated(-place.topLeft());
    if (own != m_placement) {
        m_frame = {};
        endAnimation();
    }
    m_placement = own;
    // A window that the compositor of Wayland has placed moves only when it is shown anew.
    if (isVisible() && geometry() != place && QGuiApplication::platformName().startsWith(u"wayland"))
        hide();
    setGeometry(place);
    m_content->setGeometry(own.bubble);
    if (!isTranslucent())
        setMask(shape());
}

/// The pixels that are at least half covered, where there can be no others.
QBitmap PopoverWindow::shape() const {
    QImage covered(size(), QImage::Format_ARGB32_Premultiplied);
    covered.fill(Qt::transparent);
    QPainter painter(&covered);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(m_placement.outline(), Qt::black);
    painter.end();
    return QBitmap::fromImage(covered.createAlphaMask(Qt::ThresholdAlphaDither));
}

void PopoverWindow::present(const PopoverPlacement& placement, QWidget& owner, bool animates) {
    const bool appears = !isVisible() || m_isLeaving;
    m_isLeaving = false;
    place(placement);
    if (isVisible() && !appears)
        return;
    create();
    windowHandle()->setTransientParent(owner.windowHandle());
    if (animates && appears)
        animate(true);
    else
        endAnimation();
    show();
}

void PopoverWindow::dismiss(bool animates) {
    if (!isVisible() || m_isLeaving)
        return;
    m_isLeaving = true;
    if (animates)
        animate(false);
    else
        hide();
}

void PopoverWindow::animate(bool appears) {
    if (prefersReducedMotion() || !isTranslucent()) {
        setVisible(appears);
        return endAnimation();
    }
    takeSnapshot();
    m_animation.setDirection(appears ? QVariantAnimation::Forward : QVariantAnimation::Backward);
    if (m_animation.state() != QVariantAnimation::Running) // else it turns round
        m_animation.start();
}

void PopoverWindow::endAnimation() {
    m_animation.stop();
    m_snapshot = {};
    if (m_content != nullptr)
        m_content->show();
    update();
}

void PopoverWindow::takeSnapshot() {
    m_content->show();
    const qreal scale = devicePixelRatioF();
    m_snapshot = QImage((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    m_snapshot.setDevicePixelRatio(scale);
    m_snapshot.fill(Qt::transparent);
    QPainter painter(&m_snapshot);
    drawFrame(painter);
    m_content->render(&painter, m_content->pos(), {}, DrawChildren);
    m_content->hide();
}

QImage PopoverWindow::makeFrame(qreal scale) const {
    const qreal line = std::max(1.0, std::floor(scale)) / scale; // of whole pixels
    QImage frame((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    frame.setDevicePixelRatio(scale);
    frame.fill(isTranslucent() ? QColor(Qt::transparent) : m_edge);
    QPainter painter(&frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_edge, line));
    painter.setBrush(m_background);
    painter.drawPath(m_placement.outline(line / 2, scale));
    painter.end();
    return isTranslucent() ? withDropShadow(frame, {QColor(0, 0, 0, 110), 12, {0, 3}}) : frame;
}

void PopoverWindow::drawFrame(QPainter& painter) {
    const qreal scale = pixelsPerPoint(painter);
    if (m_frame.isNull() || m_frame.devicePixelRatio() != scale)
        m_frame = makeFrame(scale);
    drawPixels(painter, {}, m_frame);
}

void PopoverWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_snapshot.isNull())
        return drawFrame(painter);
    const qreal progress = m_animation.currentValue().toReal();
    const qreal scale = smallest + (1 - smallest) * progress;
    painter.setOpacity(progress);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(m_placement.tip);
    painter.scale(scale, scale);
    painter.translate(-m_placement.tip);
    painter.drawImage(QPointF(), m_snapshot);
}

} // namespace platform
