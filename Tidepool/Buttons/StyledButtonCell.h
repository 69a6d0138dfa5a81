#pragma once

#include "Platform/Controls/ButtonCell.h"
#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/StyledCell.h"

namespace tidepool {

/// How a button looks: a bezel by its state, the title in the style's font and the state's colour, the image
/// by its scaling. All of it is a function of the state and the style.
class StyledButtonCell : public StyledCell<ButtonCellStyle, platform::ButtonCell> {
public:
    /// Whether the title stands in the middle, whatever is kept free above and below it.
    bool verticallyCenterTitle() const { return m_verticallyCenterTitle; }

    void setVerticallyCenterTitle(bool centers) { set(m_verticallyCenterTitle, centers); }

    /// What is kept free around the image, the title and the content of a framed cell. An image beside a
    /// title stands in the middle all the same.
    virtual const QMarginsF& imageEdgeInsets(const ButtonCellStyle& style) const;
    virtual const QMarginsF& titleEdgeInsets(const ButtonCellStyle& style) const;
    virtual const QMarginsF& edgeInsets(const ButtonCellStyle& style) const;

    /// The image of a bordered cell's bezel; null for none.
    const platform::Image* bezel(const platform::CellContext& context) const;

    /// What the keyboard focus is drawn around when the cell has `frame`.
    virtual QRectF focusRingMaskBounds(const QRectF& frame, const platform::CellContext& context) const;

    /// Without `focused`: the ring shows that, and no bezel.
    StyledControlState controlState(StyledControlState ofControl) const override;

    const QFont& titleFont(const QFont& ofControl, const platform::CellStyle& style) const override;
    QRectF drawingRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QRectF imageRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QRectF titleRect(const QRectF& bounds, const platform::CellContext& context) const override;

    void drawBezel(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
    void drawTitle(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
    void drawImage(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
    void drawFocus(QPainter& painter, const QRectF& bounds,
                   const platform::CellContext& context) const override;

private:
    bool m_verticallyCenterTitle = true;
};

} // namespace tidepool
