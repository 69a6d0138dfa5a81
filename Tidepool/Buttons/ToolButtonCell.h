#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// The bezel of a tool, with a mark in the corner where lines end if there is more.
class ToolButtonCell : public RestyledCell<ToolButtonCellStyle, StyledButtonCell> {
public:
    bool showMoreIcon() const { return m_showMoreIcon; }

    void setShowMoreIcon(bool shows) { set(m_showMoreIcon, shows); }

    void drawInterior(QPainter& painter, const QRectF& frame,
                      const platform::CellContext& context) const override;

private:
    void drawMore(QPainter& painter, const QRectF& frame, const platform::CellContext& context) const;

    bool m_showMoreIcon = false;
};

} // namespace tidepool
