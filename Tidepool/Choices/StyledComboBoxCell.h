#pragma once

#include "Platform/Text/ComboBoxCell.h"
#include "Tidepool/Styles/PopUpButtonCellStyles.h"
#include "Tidepool/Styles/StyledCell.h"

namespace tidepool {

/// How a combo box looks: a field, and an arrow that points up while the list is open.
class StyledComboBoxCell : public StyledCell<ComboBoxStyle, platform::ComboBoxCell> {
public:
    bool isPopupOpen() const { return m_isPopupOpen; }

    void setPopupOpen(bool isOpen) { set(m_isPopupOpen, isOpen); }

    const platform::Image& fieldImage(const platform::CellContext& context) const;

    QRectF arrowRect(const QRectF& bounds, const platform::CellContext& context) const override;
    const QFont& titleFont(const QFont& ofControl, const platform::CellStyle& style) const override;
    QRectF drawingRect(const QRectF& bounds, const platform::CellContext& context) const override;
    QColor textColor(const platform::CellContext& context) const override;
    QColor placeholderColor(const platform::CellContext& context) const override;
    void drawFocus(QPainter& painter, const QRectF& bounds,
                   const platform::CellContext& context) const override;

protected:
    void drawFrame(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;

private:
    bool m_isPopupOpen = false;
};

} // namespace tidepool
