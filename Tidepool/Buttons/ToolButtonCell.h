#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// The bezel of a tool, with a mark in the corner where lines end if there is more.
class ToolButtonCell : public StyledButtonCell {
public:
    const ToolButtonCellStyle& style() const override { return resolvedStyle<ToolButtonCellStyle>(); }

    bool showMoreIcon() const { return m_showMoreIcon; }

    void setShowMoreIcon(bool shows) { m_showMoreIcon = shows; }

    void drawInterior(QPainter& painter, const QRectF& frame) const override;

private:
    void drawMore(QPainter& painter, const QRectF& frame) const;

    bool m_showMoreIcon = false;
};

} // namespace tidepool
