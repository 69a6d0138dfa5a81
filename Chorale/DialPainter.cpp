#include "Chorale/DialPainter.h"

#include "Platform/Controls/FocusRing.h"
#include "Platform/Graphics/Pens.h"

#include <QLinearGradient>
#include <QPainter>
#include <QRadialGradient>

#include <algorithm>
#include <cmath>

namespace chorale {

namespace {

using State = platform::StyledControlState;

/// Lengths in parts of the diameter.
constexpr qreal ringWidth = 0.065;
constexpr qreal knobInset = 0.15;
constexpr qreal pointerWidth = 0.05;
constexpr qreal disabledOpacity = 0.45;

/// In Qt's sixteenths of a degree, counter-clockwise from three o'clock.
int qtAngle(double position) {
    constexpr double start = 225;
    constexpr double sweep = 270;
    return static_cast<int>(std::lround((start - position * sweep) * 16));
}

void paintRing(QPainter& painter, const QRectF& frame, const DialLook& look) {
    const qreal width = frame.width() * ringWidth;
    const QRectF ring = frame.adjusted(width, width, -width, -width);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(platform::roundPen(QColor(0, 0, 0, 110), width));
    painter.drawArc(ring, qtAngle(0), qtAngle(1) - qtAngle(0));
    painter.setPen(platform::roundPen(QColor(255, 255, 255, 18), width * 0.6));
    painter.drawArc(ring, qtAngle(0), qtAngle(1) - qtAngle(0));
    const double from = std::min(look.origin, look.value);
    const double to = std::max(look.origin, look.value);
    if (to <= from)
        return;
    const bool isHeld = look.state.contains(State::highlighted);
    QColor glow = look.accent;
    glow.setAlpha(isHeld ? 90 : 45);
    painter.setPen(platform::roundPen(glow, width * 1.9));
    painter.drawArc(ring, qtAngle(from), qtAngle(to) - qtAngle(from));
    painter.setPen(platform::roundPen(isHeld ? look.accent.lighter(115) : look.accent, width));
    painter.drawArc(ring, qtAngle(from), qtAngle(to) - qtAngle(from));
}

void paintKnob(QPainter& painter, const QRectF& frame) {
    const qreal inset = frame.width() * knobInset;
    const QRectF knob = frame.adjusted(inset, inset, -inset, -inset);
    const qreal drop = frame.width() * 0.035;
    QRadialGradient shadow(knob.center() + QPointF(0, drop), knob.width() * 0.58);
    shadow.setColorAt(0.8, QColor(0, 0, 0, 120));
    shadow.setColorAt(1, Qt::transparent);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shadow);
    painter.drawEllipse(knob.adjusted(-drop * 2, -drop, drop * 2, drop * 3));
    painter.setBrush(QColor(0x0a, 0x0a, 0x12));
    painter.drawEllipse(knob);
    const qreal edge = frame.width() * 0.014;
    QLinearGradient rim(knob.topLeft(), knob.bottomLeft());
    rim.setColorAt(0, QColor(0x7a, 0x7d, 0x9a));
    rim.setColorAt(0.5, QColor(0x3a, 0x3b, 0x50));
    rim.setColorAt(1, QColor(0x26, 0x27, 0x36));
    painter.setBrush(rim);
    painter.drawEllipse(knob.adjusted(edge, edge, -edge, -edge));
    QLinearGradient face(knob.topLeft(), knob.bottomLeft());
    face.setColorAt(0, QColor(0x48, 0x4a, 0x62));
    face.setColorAt(1, QColor(0x2b, 0x2c, 0x3e));
    painter.setBrush(face);
    painter.drawEllipse(knob.adjusted(2 * edge, 2.4 * edge, -2 * edge, -1.6 * edge));
}

void paintPointer(QPainter& painter, const QRectF& frame, const DialLook& look) {
    const double turn = (look.value - 0.5) * dialSweep;
    const QPointF direction(std::sin(turn), -std::cos(turn));
    const qreal radius = frame.width() * (0.5 - knobInset);
    painter.setPen(platform::roundPen(QColor(0xf2, 0xf3, 0xf8), std::max(1.5, frame.width() * pointerWidth)));
    painter.drawLine(frame.center() + direction * radius * 0.5, frame.center() + direction * radius * 0.82);
}

} // namespace

void paintDial(QPainter& painter, const QRectF& frame, const DialLook& look) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(look.state.contains(State::disabled) ? disabledOpacity : 1);
    paintRing(painter, frame, look);
    paintKnob(painter, frame);
    paintPointer(painter, frame, look);
    if (look.state.contains(State::focused))
        platform::drawFocusRing(painter, frame, {.radius = frame.width() / 2});
}

} // namespace chorale
