#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Push buttons.
class ButtonCellStyle : public ControlStyle {
public:
    ButtonCellStyle();

    virtual const QMarginsF& imageEdgeInsets() const { return m_imageEdgeInsets; }

    void setImageEdgeInsets(QMarginsF value) { m_imageEdgeInsets = value; }

    virtual const QMarginsF& titleEdgeInsets() const { return m_titleEdgeInsets; }

    void setTitleEdgeInsets(QMarginsF value) { m_titleEdgeInsets = value; }

private:
    QMarginsF m_imageEdgeInsets;
    QMarginsF m_titleEdgeInsets;
};

} // namespace tidepool
