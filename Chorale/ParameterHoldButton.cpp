#include "Chorale/ParameterHoldButton.h"

#include "Chorale/AudioParameter.h"
#include "Platform/Controls/FocusRing.h"
#include "Platform/Controls/PointerTracking.h"
#include "Platform/Graphics/Dimming.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace chorale {

namespace {

bool holds(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

ParameterHoldButton::ParameterHoldButton(std::shared_ptr<AudioParameter> param, platform::ImageResource image,
                                         platform::ImageResource pressedImage, QWidget* parent)
    : QWidget(parent), m_param(std::move(param)), m_image(image), m_pressedImage(pressedImage) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    follow(*this);
    const auto showValue = [this] { setPressed(m_param->value() == 1.0F); };
    connect(m_param.get(), &AudioParameter::valueChanged, this, showValue);
    showValue();
}

ParameterHoldButton::~ParameterHoldButton() {
    m_tracking.reset();
}

QString ParameterHoldButton::valueText() const {
    return m_isPressed ? tr("On") : tr("Off");
}

QSize ParameterHoldButton::sizeHint() const {
    return (m_image.image().size() * m_scale).toSize();
}

void ParameterHoldButton::setPressed(bool isPressed) {
    if (isPressed == m_isPressed)
        return;
    m_isPressed = isPressed;
    update();
}

QStringList ParameterHoldButton::actionNames() const {
    return {QAccessibleActionInterface::pressAction()};
}

void ParameterHoldButton::doAction(const QString&) {
    if (m_tracking && m_tracking->isActive())
        m_tracking->release();
    else
        begin();
}

void ParameterHoldButton::begin() {
    m_tracking = std::make_unique<platform::PointerTracking>(*this, [this](platform::PointerTracking::End) {
        m_isKeyDown = false;
        setPressed(false);
        m_param->setValue(0, ParameterEditor::ui, ParameterEditorState::change);
    });
    hold();
}

void ParameterHoldButton::hold() {
    setPressed(true);
    m_param->setValue(1, ParameterEditor::ui, ParameterEditorState::change);
}

void ParameterHoldButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const platform::Image& image = m_isPressed ? m_pressedImage : m_image;
    QRectF frame(QPointF(), image.size() * m_scale);
    frame.moveCenter(QRectF(rect()).center());
    if (!isEnabled())
        painter.setOpacity(platform::dimmedOpacity);
    drawScaled(painter, image, frame, m_scale);
    constexpr qreal radius = 3;
    if (hasFocus() && isActiveWindow())
        platform::drawFocusRing(painter, QRectF(rect()), {.radius = radius});
}

void ParameterHoldButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        begin();
    else
        event->ignore();
}

void ParameterHoldButton::mouseMoveEvent(QMouseEvent* event) {
    if (m_tracking && m_tracking->isActive())
        hold();
    else
        event->ignore();
}

void ParameterHoldButton::mouseReleaseEvent(QMouseEvent* event) {
    if (m_tracking && event->button() == Qt::LeftButton)
        m_tracking->release();
    else
        event->ignore();
}

void ParameterHoldButton::keyPressEvent(QKeyEvent* event) {
    if (!holds(*event))
        QWidget::keyPressEvent(event);
    else if (!event->isAutoRepeat() && !m_isKeyDown) { // a host may pass repeats on as presses
        begin();
        m_isKeyDown = true;
    }
}

void ParameterHoldButton::keyReleaseEvent(QKeyEvent* event) {
    if (!holds(*event) || !m_tracking)
        QWidget::keyReleaseEvent(event);
    else if (!event->isAutoRepeat())
        m_tracking->release();
}

void ParameterHoldButton::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (m_isKeyDown) // its release goes to whoever has the keyboard now
        m_tracking->interrupt();
}

} // namespace chorale
