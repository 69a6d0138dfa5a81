#include "Chorale/ParameterDial.h"

#include "Chorale/AudioParameter.h"
#include "Chorale/DialPainter.h"
#include "Chorale/ParameterGesture.h"
#include "Chorale/ParameterText.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace chorale {

namespace {

using State = platform::StyledControlState;

/// How far a drag goes from one end of the range to the other, in points.
constexpr double fullDrag = 200;
constexpr double fineFactor = 0.1;
constexpr double pageSteps = 10;

double angle(QPointF position, QPointF center) {
    return std::atan2(position.x() - center.x(), center.y() - position.y());
}

/// How many steps a key goes; to an end of the range for an infinite number of them; 0 for other keys.
double stepsOf(const QKeyEvent& event) {
    constexpr double end = std::numeric_limits<double>::infinity();
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
        return 1;
    case Qt::Key_Down:
    case Qt::Key_Left:
        return -1;
    case Qt::Key_PageUp:
        return pageSteps;
    case Qt::Key_PageDown:
        return -pageSteps;
    case Qt::Key_Home:
        return -end;
    case Qt::Key_End:
        return end;
    default:
        return 0;
    }
}

bool isReset(const QKeyEvent& event) {
    return event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace;
}

} // namespace

ParameterDial::ParameterDial(std::shared_ptr<AudioParameter> param, qreal diameter, QColor accent,
                             QWidget* parent)
    : QWidget(parent), m_param(std::move(param)), m_diameter(diameter * m_scale), m_accent(accent) {
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    follow(*this);
    connect(m_param.get(), &AudioParameter::isBeingInteractivelyEditedChanged, this,
            QOverload<>::of(&QWidget::update));
}

ParameterDial::~ParameterDial() = default;

QString ParameterDial::valueText() const {
    if (m_param->valueStrings() && !m_param->valueStrings()->isEmpty())
        return hostText(m_param->value(), m_param->valueStrings());
    const QString value = displayText(*m_param, m_decimalPlaces, locale());
    const QString suffix = m_param->displayableSuffix();
    return suffix.isEmpty() ? value : value + u' ' + suffix;
}

QSize ParameterDial::sizeHint() const {
    const int side = static_cast<int>(std::ceil(m_diameter));
    return {side, side};
}

void ParameterDial::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QRectF frame(0, 0, m_diameter, m_diameter);
    frame.moveCenter(QRectF(rect()).center());
    const auto& range = m_param->valueRange();
    const bool isBipolar = range.lowerBound() < 0 && range.upperBound() > 0;
    paintDial(painter, frame,
              {.value = placeInRange(*m_param, m_param->value()),
               .origin = isBipolar ? placeInRange(*m_param, 0) : 0,
               .accent = m_accent,
               .state = State()
                            .with(State::highlighted, m_gesture != nullptr)
                            .with(State::disabled, !isEnabled())
                            .with(State::focused, hasFocus() && isActiveWindow())});
}

platform::PanGestureRecognizer::Handlers ParameterDial::drag() {
    return {[this](const QMouseEvent& press) { return beginDrag(press); },
            [this](const QMouseEvent& move, QPointF from) { dragTo(move, from); },
            [this](platform::PointerTracking::End end) { endDrag(end); }};
}

bool ParameterDial::beginDrag(const QMouseEvent& press) {
    if (press.modifiers() & (Qt::AltModifier | Qt::ControlModifier)) // some desktops keep Alt
        return false;
    m_position = placeInRange(*m_param, m_param->value());
    m_gesture = std::make_unique<ParameterGesture>(m_param);
    update();
    return true;
}

void ParameterDial::dragTo(const QMouseEvent& move, QPointF from) {
    const double speed = move.modifiers().testFlag(Qt::ShiftModifier) ? fineFactor : 1;
    m_position = std::clamp(m_position + turned(from, move.position()) * speed, 0.0, 1.0);
    const double value = valueAtPlace(*m_param, m_position);
    m_gesture->setValue(static_cast<float>(isWhole(*m_param) ? std::round(value) : value));
}

void ParameterDial::endDrag(platform::PointerTracking::End end) {
    if (end == platform::PointerTracking::End::escaped)
        m_gesture->cancel();
    m_gesture.reset();
    update();
}

double ParameterDial::turned(QPointF from, QPointF to) const {
    if (m_dragMode == DragMode::vertical)
        return (from.y() - to.y()) / (fullDrag * m_scale);
    const QPointF center = QRectF(rect()).center();
    return std::remainder(angle(to, center) - angle(from, center), 2 * std::numbers::pi) / dialSweep;
}

void ParameterDial::reset() {
    ParameterGesture(m_param).setValue(m_param->defaultValue());
}

void ParameterDial::mousePressEvent(QMouseEvent* event) {
    event->button() == Qt::LeftButton ? reset() : event->ignore();
}

void ParameterDial::mouseDoubleClickEvent(QMouseEvent* event) {
    mousePressEvent(event);
}

void ParameterDial::wheelEvent(QWheelEvent* event) {
    constexpr double notch = 120;
    const bool isFine = event->modifiers().testFlag(Qt::ShiftModifier) && !isWhole(*m_param);
    // Some desktops turn the wheel's axis while Shift or Alt is held.
    const QPoint delta = event->angleDelta();
    const int turned = (delta.y() != 0 ? delta.y() : delta.x()) * (event->inverted() ? -1 : 1);
    m_steps.step(turned / notch * (isFine ? fineStep : 1), m_decimalPlaces);
    event->accept();
}

void ParameterDial::stepOnce(double count) {
    if (!m_gesture)
        m_gesture = std::make_unique<ParameterGesture>(m_param);
    const auto& range = m_param->valueRange();
    if (std::isinf(count))
        m_gesture->setValue(count > 0 ? range.upperBound() : range.lowerBound());
    else
        m_steps.step(count, m_decimalPlaces);
}

void ParameterDial::keyPressEvent(QKeyEvent* event) {
    const double count = stepsOf(*event);
    const bool isFine = event->modifiers().testFlag(Qt::ShiftModifier) && !isWhole(*m_param);
    if (m_drag.isActive() || (count == 0 && !isReset(*event)))
        QWidget::keyPressEvent(event);
    else if (count == 0)
        reset();
    else
        stepOnce(isFine ? count * fineStep : count);
}

void ParameterDial::keyReleaseEvent(QKeyEvent* event) {
    if (stepsOf(*event) == 0)
        QWidget::keyReleaseEvent(event);
    else if (!event->isAutoRepeat() && !m_drag.isActive())
        m_gesture.reset();
}

void ParameterDial::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (!m_drag.isActive())
        m_gesture.reset();
}

} // namespace chorale
