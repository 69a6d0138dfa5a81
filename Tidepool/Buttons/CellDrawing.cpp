#include "Tidepool/Buttons/CellDrawing.h"

#include "Platform/Core/FatalError.h"
#include "Tidepool/Palette/PixelAlignment.h"
#include "Tidepool/Styles/Validating.h"

#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <typeinfo>

namespace tidepool {

namespace {

using platform::ControlState;
using platform::ImageScaling;

constexpr float dimmed = 0.5F;

bool isInvalid(const QWidget* view) {
    // A type that validates nothing; the cast takes longer than all the rest of a state's look-up.
    static const std::type_info* plain = nullptr;
    if (view == nullptr || &typeid(*view) == plain)
        return false;
    const auto* validating = dynamic_cast<const Validating*>(view);
    if (validating == nullptr)
        plain = &typeid(*view);
    return validating != nullptr && !validating->isValid();
}

void drawTinted(QPainter& painter, const QRectF& frame, const platform::Image& image,
                const platform::Cell& cell, float opacity) {
    if (image.isTemplate())
        image.tinted(cell.controlTextColor()).draw(painter, frame, opacity);
    else
        image.draw(painter, frame, opacity);
}

/// What is larger than the frame begins with it.
QRectF pushedInside(const QRectF& image, const QRectF& frame) {
    const qreal y = std::max(frame.top(), std::min(frame.bottom(), image.bottom()) - image.height());
    return {QPointF(keptInside(image, frame), y), image.size()};
}

} // namespace

StyledControlState controlState(const platform::ButtonCell& cell, bool isSelected) {
    StyledControlState state = StyledControlState::defaultState;
    if (cell.showsStateBy() != platform::ButtonCell::none) {
        state = state.with(StyledControlState::on, cell.state() == ControlState::on)
                    .with(StyledControlState::mixed, cell.state() == ControlState::mixed);
    }
    return state.with(StyledControlState::disabled, !cell.isEnabled())
        .with(StyledControlState::highlighted, cell.isHighlighted() && cell.isEnabled())
        .with(StyledControlState::selected, isSelected)
        .with(StyledControlState::invalid, isInvalid(cell.controlView()));
}

QRectF integral(const QRectF& rect) {
    return QRectF(rect.toAlignedRect());
}

QRectF verticallyCentered(QRectF rect, const QRectF& bounds) {
    rect.moveTop(std::trunc(bounds.center().y() - rect.height() * 0.5));
    return rect;
}

void drawBezel(QPainter& painter, const QRectF& frame, const platform::Image* bezel,
               const platform::Cell& cell) {
    if (bezel != nullptr)
        drawTinted(painter, frame, *bezel, cell, cell.isEnabled() ? 1 : dimmed);
}

QRectF imageFrame(QSizeF size, const QRectF& frame, ImageScaling scaling, qreal backingScale) {
    switch (scaling) {
    case ImageScaling::axesIndependently:
        return frame;
    case ImageScaling::none:
        return centered(size, frame, backingScale).translated(frame.topLeft()).intersected(frame);
    case ImageScaling::proportionallyDown:
    case ImageScaling::proportionallyUpOrDown:
        return pushedInside(centered(size, frame, backingScale).translated(frame.topLeft()), frame);
    }
    platform::fatalError("Unhandled image scaling value");
}

void drawImage(QPainter& painter, const QRectF& frame, const platform::Image& image,
               const platform::ButtonCell& cell) {
    const QRectF target = imageFrame(image.size(), frame, cell.imageScaling(), cell.backingScale());
    drawTinted(painter, target, image, cell, cell.isHighlighted() || !cell.isEnabled() ? dimmed : 1);
}

void drawFocusRing(QPainter& painter, const QRectF& maskBounds, const QColor& color) {
    constexpr qreal radius = 3;
    constexpr float fillAlpha = 0.3F;
    QColor fill = color;
    fill.setAlphaF(fillAlpha);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(fill);
    painter.drawRoundedRect(maskBounds.adjusted(1, 1, -1, -1), radius, radius);
    painter.restore();
}

} // namespace tidepool
