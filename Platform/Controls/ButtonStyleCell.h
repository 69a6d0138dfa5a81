#pragma once

#include "Platform/Controls/ButtonCell.h"
#include "Platform/Controls/ButtonStyle.h"

#include <memory>

namespace platform {

/// A cell that leaves its look to a button style.
class ButtonStyleCell : public ButtonCell {
public:
    explicit ButtonStyleCell(std::unique_ptr<ButtonStyle> style);

    /// Another look from now on.
    void setStyle(std::unique_ptr<ButtonStyle> style);

    const QFont& titleFont(const QFont& ofControl, const CellStyle& style) const override;
    QSizeF cellSize(const CellContext& context) const override;
    void draw(QPainter& painter, const QRectF& frame, const CellContext& context) const override;

    /// The style has drawn it.
    void drawFocus(QPainter&, const QRectF&, const CellContext&) const override {}

private:
    std::unique_ptr<ButtonStyle> m_style;
    QFont m_font;
};

} // namespace platform
