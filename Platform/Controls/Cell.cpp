#include "Platform/Controls/Cell.h"

#include "Platform/Controls/FocusRing.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

namespace platform {

qreal Cell::backingScale() const {
    return m_controlView != nullptr ? m_controlView->devicePixelRatioF() : qGuiApp->devicePixelRatio();
}

const CellStyle& Cell::style() const {
    static const CellStyle none;
    return none;
}

StyledControlState Cell::controlState(StyledControlState ofControl) const {
    return ofControl | StyledControlState::defaultState;
}

const QFont& Cell::titleFont(const QFont& ofControl, const CellStyle&) const {
    return ofControl;
}

QColor Cell::controlTextColor(const CellContext&) const {
    const QPalette palette = m_controlView != nullptr ? m_controlView->palette() : QGuiApplication::palette();
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

QRectF Cell::drawingRect(const QRectF& bounds, const CellContext&) const {
    return bounds;
}

void Cell::drawFocus(QPainter& painter, const QRectF& bounds, const CellContext&) const {
    drawFocusRing(painter, bounds, {});
}

void Cell::changed() const {
    if (m_controlView == nullptr)
        return;
    m_controlView->updateGeometry();
    m_controlView->update();
}

} // namespace platform
