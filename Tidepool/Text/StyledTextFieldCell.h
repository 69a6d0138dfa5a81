#pragma once

#include "Platform/Text/TextFieldCell.h"
#include "Tidepool/Styles/StyledCell.h"
#include "Tidepool/Styles/TextFieldCellStyle.h"

namespace tidepool {

/// How a text field looks: a bezel by its state, the text in the style's font and the state's colour.
class StyledTextFieldCell : public StyledCell<TextFieldCellStyle, platform::TextFieldCell> {
public:
    StyledTextFieldCell() { setBezeled(true); }

    /// Whether the text stands in the middle of the height, otherwise at its top.
    bool verticallyCenter() const { return m_verticallyCenter; }

    void setVerticallyCenter(bool centers) { set(m_verticallyCenter, centers); }

    /// The image of a framed cell's bezel; null for none.
    const platform::Image* bezel(const platform::CellContext& context) const;

    const QFont& titleFont(const QFont& ofControl, const platform::CellStyle& style) const override;
    QRectF drawingRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QRectF titleRect(const QRectF& bounds, const platform::CellContext& context) const override;
    qreal titleShift(const platform::CellContext& context) const override;
    QColor textColor(const platform::CellContext& context) const override;
    QColor placeholderColor(const platform::CellContext& context) const override;

    /// The frame shows the focus, below the text.
    void drawFocus(QPainter&, const QRectF&, const platform::CellContext&) const override {}

protected:
    void drawFrame(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;

    /// The frame with its bezel only.
    void drawBezel(QPainter& painter, const QRectF& frame, const platform::CellContext& context) const;

private:
    bool m_verticallyCenter = true;
};

} // namespace tidepool
