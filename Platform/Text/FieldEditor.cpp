#include "Platform/Text/FieldEditor.h"

#include "Platform/Controls/MenuStyle.h"
#include "Platform/Graphics/DevicePixels.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>

#include <cmath>

namespace platform {

FieldEditor::FieldEditor(QWidget& field) : QLineEdit(&field) {
    setFrame(false);
    setAttribute(Qt::WA_MacShowFocusRect, false);
}

bool FieldEditor::event(QEvent* event) {
    const QScopedValueRollback handling(m_events, m_events + 1);
    return QLineEdit::event(event);
}

void FieldEditor::dispose() {
    if (m_events == 0) {
        delete this;
        return;
    }
    hide();
    setParent(nullptr);
    deleteLater();
}

void FieldEditor::begin(const QString& text) {
    if (this->text() != text || isModified() || isUndoAvailable())
        setText(text);
}

int FieldEditor::offsetInLine(qreal textWidth, int lineWidth, Qt::Alignment alignment) {
    const int used = static_cast<int>(std::lround(textWidth)) + 1;
    if (used > lineWidth)
        return 0;
    if (alignment & Qt::AlignRight)
        return lineWidth - used - 1;
    return alignment & Qt::AlignHCenter ? -((used - lineWidth) / 2) : 0;
}

void FieldEditor::setLine(const QRectF& line) {
    const QPoint origin(static_cast<int>(std::ceil(line.left())), static_cast<int>(line.top()));
    m_shift = line.left() - origin.x();
    const QRect room(origin, QSize(static_cast<int>(line.width()), static_cast<int>(line.height())));
    setGeometry(room.adjusted(-margin, -margin, margin, margin));
}

/// The text begins with a whole pixel, where it stood before there was an editor.
void FieldEditor::initPainter(QPainter* painter) const {
    QLineEdit::initPainter(painter);
    const qreal advance = QFontMetricsF(font()).horizontalAdvance(text());
    const QPointF start(margin + offsetInLine(advance, width() - 2 * margin, alignment()), margin);
    painter->translate(onDevicePixel(*painter, start + QPointF(m_shift, 0)) - start);
}

void FieldEditor::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Its own menu and another window do not end it.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        Q_EMIT left();
}

void FieldEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && isModified())
        Q_EMIT cancelled();
    else
        QLineEdit::keyPressEvent(event);
}

void FieldEditor::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    MenuStyle::apply(*menu);
    menu->popup(event->globalPos());
}

} // namespace platform
