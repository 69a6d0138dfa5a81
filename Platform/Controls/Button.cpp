#include "Platform/Controls/Button.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>
#include <utility>

namespace platform {

Button::Button(const QString& title, std::unique_ptr<ButtonStyle> style, QWidget* parent)
    : BaseButton(parent), m_style(std::move(style)) {
    setText(title);
    setFont(m_style->font());
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Button::setLabelWidth(qreal width) {
    m_labelWidth = width;
    updateGeometry();
}

QSize Button::sizeHint() const {
    const QFontMetricsF metrics(font());
    const qreal width = m_labelWidth > 0 ? m_labelWidth : metrics.horizontalAdvance(text());
    const QSizeF size = m_style->size({width, metrics.height()});
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

void Button::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(font());
    m_style->paint(painter, {text(), QRectF(rect()), isDown(), isEnabled(), hasFocus()});
}

} // namespace platform
