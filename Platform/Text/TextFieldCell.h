#pragma once

#include "Platform/Controls/Cell.h"

#include <QString>

namespace platform {

/// How a line of text looks that may be edited: a frame, and the text or a placeholder. While an editor shows
/// the text the cell leaves it out.
class TextFieldCell : public Cell {
public:
    const QString& placeholderString() const { return m_placeholder; }

    void setPlaceholderString(const QString& text) { set(m_placeholder, text); }

    Qt::Alignment alignment() const { return m_alignment; }

    /// The horizontal one; leading and trailing follow the direction.
    void setAlignment(Qt::Alignment alignment) { set(m_alignment, alignment); }

    bool drawsBackground() const { return m_drawsBackground; }

    void setDrawsBackground(bool draws) { set(m_drawsBackground, draws); }

    /// True while an editor shows the text.
    bool showsFirstResponder() const { return m_showsFirstResponder; }

    void setShowsFirstResponder(bool shows) { set(m_showsFirstResponder, shows); }

    /// The room of the text: a line high, in the middle of the height.
    virtual QRectF titleRect(const QRectF& bounds, const CellContext& context) const;

    /// How far the text lies from the edges of its room; less than 0 moves it left. In points.
    virtual qreal titleShift(const CellContext& context) const;

    /// Where the line of the text lies in `bounds`.
    QRectF lineRect(const QRectF& bounds, const CellContext& context) const;

    virtual QColor placeholderColor(const CellContext& context) const;

    virtual QColor textColor(const CellContext& context) const { return controlTextColor(context); }

    QSizeF cellSize(const CellContext& context) const override;
    void draw(QPainter& painter, const QRectF& frame, const CellContext& context) const override;

protected:
    virtual void drawFrame(QPainter& painter, const QRectF& frame, const CellContext& context) const;
    virtual void drawInterior(QPainter& painter, const QRectF& frame, const CellContext& context) const;

private:
    QString m_placeholder;
    Qt::Alignment m_alignment = Qt::AlignLeading;
    bool m_drawsBackground = true;
    bool m_showsFirstResponder = false;
    mutable PreparedText m_shownPlaceholder;
};

} // namespace platform
