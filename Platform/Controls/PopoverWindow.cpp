#include "Platform/Controls/PopoverWindow.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Core/WindowSystem.h"
#include "Platform/Graphics/DropShadow.h"
#include "Platform/Graphics/ReducedMotion.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <chrono>

namespace platform {

namespace {

using namespace std::chrono_literals;

constexpr auto duration = 150ms;
constexpr qreal smallest = 0.94; // from where it grows
constexpr int shadowReach = 16;

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
        m_snapshot = {};
        setVisible(!m_isLeaving);
        m_content->show();
        update();
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
    const int margin = PopoverPlacement::arrowLength + (isTranslucent() ? shadowReach : 0);
    const QRect place = placement.bubble.adjusted(-margin, -margin, margin, margin);
    const PopoverPlacement own = placement.translated(-place.topLeft());
    if (own != m_placement)
        m_frame = {};
    m_placement = own;
    // A window that the compositor of Wayland has placed moves only when it is shown anew.
    if (isVisible() && geometry() != place && QGuiApplication::platformName().startsWith(u"wayland"))
        hide();
    setGeometry(place);
    m_content->setGeometry(own.bubble);
    if (!isTranslucent())
        setMask(QRegion(own.outline().toFillPolygon().toPolygon()));
}

void PopoverWindow::present(const PopoverPlacement& placement, QWidget& owner, bool animates) {
    const bool appears = !isVisible() || m_isLeaving;
    m_isLeaving = false;
    place(placement);
    if (isVisible() && !appears)
        return;
    create();
    windowHandle()->setTransientParent(owner.window()->windowHandle());
    if (animates)
        animate(true);
    else
        m_animation.stop();
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
        if (!appears)
            hide();
        return;
    }
    m_animation.stop();
    m_content->show();
    QImage snapshot(size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    snapshot.setDevicePixelRatio(devicePixelRatioF());
    snapshot.fill(Qt::transparent);
    QPainter painter(&snapshot);
    drawFrame(painter);
    m_content->render(&painter, m_content->pos(), {}, DrawChildren);
    painter.end();
    m_snapshot = snapshot;
    m_content->hide();
    m_animation.setDirection(appears ? QVariantAnimation::Forward : QVariantAnimation::Backward);
    m_animation.start();
}

QImage PopoverWindow::frameWithShadow() const {
    QImage shape(size() * devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    shape.setDevicePixelRatio(devicePixelRatioF());
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_edge, 1));
    painter.setBrush(m_background);
    painter.drawPath(m_placement.outline(0.5)); // on whole pixels
    painter.end();
    return withDropShadow(shape, {QColor(0, 0, 0, 110), 12, {0, 3}});
}

void PopoverWindow::drawFrame(QPainter& painter) const {
    painter.drawImage(QPointF(), m_frame);
}

void PopoverWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_frame.isNull() || m_frame.devicePixelRatio() != devicePixelRatioF())
        m_frame = frameWithShadow();
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
