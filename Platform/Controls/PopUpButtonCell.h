#pragma once

#include "Platform/Controls/ButtonCell.h"

namespace platform {

/// What a pop-up button draws itself with: a bezel with arrows at its end, and the title where lines begin.
class PopUpButtonCell : public ButtonCell {
public:
    /// `pullsDown` for one arrow that points down, else one in each direction.
    explicit PopUpButtonCell(bool pullsDown);

    bool pullsDown() const { return m_pullsDown; }

    QRectF titleRect(const QRectF& bounds, const CellContext& context) const override;
    QSizeF cellSize(const CellContext& context) const override;

    void drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const override;
    void drawTitle(QPainter& painter, const QRectF& frame, const CellContext& context) const override;
    void drawFocus(QPainter& painter, const QRectF& bounds, const CellContext& context) const override;

private:
    /// Of the title and the arrows.
    QColor contentColor(const CellContext& context) const;

    const bool m_pullsDown;
};

} // namespace platform
