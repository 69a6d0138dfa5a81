#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"

namespace tidepool {

/// The look of the kit's push button around insets of its own.
class VantorPushButtonCell : public StyledButtonCell {
public:
    const QMarginsF& imageEdgeInsets(const ButtonCellStyle&) const override { return m_imageEdgeInsets; }

    void setImageEdgeInsets(QMarginsF insets) { set(m_imageEdgeInsets, insets); }

    const QMarginsF& titleEdgeInsets(const ButtonCellStyle&) const override { return m_titleEdgeInsets; }

    void setTitleEdgeInsets(QMarginsF insets) { set(m_titleEdgeInsets, insets); }

    const QMarginsF& edgeInsets(const ButtonCellStyle&) const override { return m_edgeInsets; }

    void setEdgeInsets(QMarginsF insets) { set(m_edgeInsets, insets); }

private:
    QMarginsF m_imageEdgeInsets;
    QMarginsF m_titleEdgeInsets;
    QMarginsF m_edgeInsets;
};

} // namespace tidepool
