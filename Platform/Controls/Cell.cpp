#include "Platform/Controls/Cell.h"

#include <QGuiApplication>
#include <QPalette>
#include <QWidget>

namespace platform {

qreal Cell::backingScale() const {
    return m_controlView != nullptr ? m_controlView->devicePixelRatioF() : qGuiApp->devicePixelRatio();
}

QColor Cell::controlTextColor() const {
    const QPalette palette = m_controlView != nullptr ? m_controlView->palette() : QGuiApplication::palette();
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

} // namespace platform
