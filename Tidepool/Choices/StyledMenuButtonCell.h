#pragma once

#include "Platform/Controls/PopUpButtonCell.h"
#include "Tidepool/Styles/PopUpButtonCellStyles.h"
#include "Tidepool/Styles/StyledCell.h"

#include <optional>

namespace tidepool {

/// How a button with a menu looks: a bezel by its state, which has the arrows, and the title. A label before
/// the title is quieter, and the title then bolder than it.
class StyledMenuButtonCell : public StyledCell<MenuButtonCellStyle, platform::PopUpButtonCell> {
public:
    using StyledCell::StyledCell;

    const std::optional<QString>& label() const { return m_label; }

    void setLabel(std::optional<QString> label) { set(m_label, std::move(label)); }

    /// Null for none.
    const platform::Image* bezel(const platform::CellContext& context) const;

    /// What the keyboard focus is drawn around when the cell has `frame`.
    QRectF focusRingMaskBounds(const QRectF& frame, const platform::CellContext& context) const;

    /// Without `focused`: the ring shows that, and no bezel.
    StyledControlState controlState(StyledControlState ofControl) const override;

    const QFont& titleFont(const QFont& ofControl, const platform::CellStyle& style) const override;

    /// Empty without a title; the label is in it.
    QRectF titleRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QSizeF cellSize(const platform::CellContext& context) const override;

    void drawBezel(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
    void drawTitle(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
    void drawFocus(QPainter& painter, const QRectF& bounds,
                   const platform::CellContext& context) const override;

private:
    bool hasLabel() const { return m_label && !m_label->isEmpty(); }

    const platform::PreparedText& shownLabel() const;
    qreal labelAdvance() const;

    std::optional<QString> m_label;
    mutable platform::PreparedText m_shownLabel;
};

/// Of a pop-up button.
class StyledPopUpButtonCell : public RestyledCell<PopUpButtonCellStyle, StyledMenuButtonCell> {
public:
    explicit StyledPopUpButtonCell(bool pullsDown = false) : RestyledCell(pullsDown) {}
};

/// Of a small pop-up button.
class ToolPopUpButtonCell : public RestyledCell<ToolPopUpButtonCellStyle, StyledPopUpButtonCell> {
public:
    explicit ToolPopUpButtonCell(bool pullsDown = false) : RestyledCell(pullsDown) {}
};

/// Of a button that pulls a menu down.
class StyledPopDownButtonCell : public RestyledCell<StyledPopDownButtonCellStyle, StyledMenuButtonCell> {
public:
    StyledPopDownButtonCell() : RestyledCell(true) {}
};

} // namespace tidepool
