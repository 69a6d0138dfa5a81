#include "Platform/Controls/ButtonStyleCell.h"

#include <QFontMetricsF>
#include <QPainter>

namespace platform {

ButtonStyleCell::ButtonStyleCell(std::unique_ptr<ButtonStyle> style)
    : m_style(std::move(style)), m_font(m_style->font()) {}

void ButtonStyleCell::setStyle(std::unique_ptr<ButtonStyle> style) {
    m_style = std::move(style);
    m_font = m_style->font();
    changed();
}

const QFont& ButtonStyleCell::titleFont(const QFont&, const CellStyle&) const {
    return m_font;
}

QSizeF ButtonStyleCell::cellSize(const CellContext& context) const {
    const QFontMetricsF metrics(m_font);
    return m_style->size({metrics.horizontalAdvance(context.title.text()), metrics.height()});
}

void ButtonStyleCell::draw(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    painter.setFont(m_font);
    m_style->paint(painter, {context.title.text(), frame, context.state});
}

} // namespace platform
