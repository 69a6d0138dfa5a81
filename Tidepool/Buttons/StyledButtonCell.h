#pragma once

#include "Platform/Controls/ButtonCell.h"
#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/StyleReference.h"

namespace tidepool {

/// How a button looks: a bezel by its state, the title in the style's font and the state's colour, the image
/// by its scaling. All of it is a function of the state and the style.
class StyledButtonCell : public platform::ButtonCell {
public:
    /// The look of this cell. A cell class with a style class of its own overrides this.
    virtual const ButtonCellStyle& style() const { return resolvedStyle<ButtonCellStyle>(); }

    /// Gives this cell a style of its own; null for the one that it would have without. A style of another
    /// class than the cell's is not taken.
    void setStyle(std::shared_ptr<const ButtonCellStyle> style) { m_style.set(std::move(style)); }

    StyledControlState controlState() const;

    bool isSelected() const { return m_selected; }

    void setSelected(bool selected) { m_selected = selected; }

    /// Whether the title stands in the middle, whatever is kept free above and below it.
    bool verticallyCenterTitle() const { return m_verticallyCenterTitle; }

    void setVerticallyCenterTitle(bool centers) { m_verticallyCenterTitle = centers; }

    /// What the style keeps free around the image, the title and the content of a framed cell. An image
    /// beside a title stands in the middle all the same.
    virtual const QMarginsF& imageEdgeInsets() const { return style().imageEdgeInsets(); }

    virtual const QMarginsF& titleEdgeInsets() const { return style().titleEdgeInsets(); }

    virtual const QMarginsF& edgeInsets() const { return style().edgeInsets(); }

    /// What the keyboard focus is drawn around when the cell has `frame`.
    virtual QRectF focusRingMaskBounds(const QRectF& frame) const;

    /// The style's, whatever state the cell is in.
    QColor controlTextColor() const override { return style().textColor(); }

    QRectF drawingRect(const QRectF& bounds) const override;
    QRectF imageRect(const QRectF& bounds) const override;
    QRectF titleRect(const QRectF& bounds) const override;

    void drawBezel(QPainter& painter, const QRectF& frame) const override;
    void drawTitle(QPainter& painter, const QRectF& frame) const override;
    void drawImage(QPainter& painter, const QRectF& frame) const override;

protected:
    template <typename S>
    const S& resolvedStyle() const {
        return m_style.get<S>(controlView());
    }

    const QFont& titleFont() const override { return style().font(); }

private:
    StyleReference m_style;
    bool m_selected = false;
    bool m_verticallyCenterTitle = true;
};

} // namespace tidepool
