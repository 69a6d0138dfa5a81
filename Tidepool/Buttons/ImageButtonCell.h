#pragma once

#include "Platform/Controls/ButtonCell.h"
#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/StyledCell.h"

namespace tidepool {

/// An image alone, dimmed while it is pressed or disabled. A template takes the text colour of the push
/// buttons around it.
class ImageButtonCell : public StyledCell<ButtonCellStyle, platform::ButtonCell> {
public:
    ImageButtonCell();

    void drawImage(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;

protected:
    virtual float opacity(StyledControlState state) const;
};

} // namespace tidepool
