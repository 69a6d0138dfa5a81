#include "Platform/Text/TextFieldCell.h"

#include "Platform/Text/FieldEditor.h"

#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace platform {

QRectF TextFieldCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    constexpr qreal margin = FieldEditor::margin;
    QRectF room = drawingRect(bounds, context);
    if (!isFramed())
        room.adjust(margin, 0, -margin, 0); // letters may reach to the left of where they begin
    const qreal height = context.title.lineHeight();
    room.setTop(std::trunc(bounds.center().y() - height / 2));
    room.setHeight(height);
    return room;
}

qreal TextFieldCell::titleShift(const CellContext&) const {
    return FieldEditor::margin;
}

QRectF TextFieldCell::lineRect(const QRectF& bounds, const CellContext& context) const {
    const qreal shift = titleShift(context);
    const QMarginsF inset(std::max(shift, 0.0), 0, std::max(shift, 0.0), 0);
    return titleRect(bounds, context).marginsRemoved(inset).translated(std::min(shift, 0.0), 0);
}

QColor TextFieldCell::placeholderColor(const CellContext& context) const {
    QColor color = textColor(context);
    color.setAlphaF(color.alphaF() / 2);
    return color;
}

QSizeF TextFieldCell::cellSize(const CellContext& context) const {
    constexpr QRectF bounds(0, 0, 100, 100);
    const QSizeF frame = bounds.size() - drawingRect(bounds, context).size();
    return QSizeF(context.title.size().width() + 2 * FieldEditor::margin, context.title.lineHeight()) + frame;
}

void TextFieldCell::draw(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    if (m_drawsBackground)
        drawFrame(painter, frame, context);
    if (!m_showsFirstResponder)
        drawInterior(painter, frame, context);
}

void TextFieldCell::drawFrame(QPainter&, const QRectF&, const CellContext&) const {}

void TextFieldCell::drawInterior(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const bool isEmpty = context.title.text().isEmpty();
    if (isEmpty && m_placeholder.isEmpty())
        return;
    if (isEmpty)
        m_shownPlaceholder.set(m_placeholder, context.title.font(), PreparedText::Ampersands::areText);
    const PreparedText& text = isEmpty ? m_shownPlaceholder : context.title;
    const auto alignment = QStyle::visualAlignment(context.direction, m_alignment);
    QRectF line = lineRect(frame, context);
    const auto width = static_cast<int>(line.width());
    line.setLeft(line.left() + FieldEditor::offsetInLine(text.advance(), width, alignment));
    const QColor color = isEmpty ? placeholderColor(context) : textColor(context);
    text.draw(painter, line, {color.rgba(), Qt::AlignLeft, false, true});
}

} // namespace platform
