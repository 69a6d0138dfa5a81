#pragma once

#include "Tidepool/StyledButtonCell.h"
#include "Tidepool/ToolButtonCellStyles.h"

namespace tidepool {

/// The bezel of a tool, with a mark in its corner if there is more.
class ToolButtonCell : public StyledButtonCell {
public:
    const ToolButtonCellStyle& style() const override { return resolvedStyle<ToolButtonCellStyle>(); }

    bool showMoreIcon() const { return m_showMoreIcon; }

    void setShowMoreIcon(bool shows) { m_showMoreIcon = shows; }

    void drawBezel(QPainter& painter, const QRectF& frame) const override;

private:
    bool m_showMoreIcon = false;
};

} // namespace tidepool
