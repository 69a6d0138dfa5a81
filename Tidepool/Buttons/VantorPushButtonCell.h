#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"

namespace tidepool {

/// The look of the kit's push button around insets of its own.
class VantorPushButtonCell : public StyledButtonCell {
public:
    const QMarginsF& imageEdgeInsets() const override { return m_imageEdgeInsets; }

    void setImageEdgeInsets(QMarginsF insets) { m_imageEdgeInsets = insets; }

    const QMarginsF& titleEdgeInsets() const override { return m_titleEdgeInsets; }

    void setTitleEdgeInsets(QMarginsF insets) { m_titleEdgeInsets = insets; }

    const QMarginsF& edgeInsets() const override { return m_edgeInsets; }

    void setEdgeInsets(QMarginsF insets) { m_edgeInsets = insets; }

private:
    QMarginsF m_imageEdgeInsets;
    QMarginsF m_titleEdgeInsets;
    QMarginsF m_edgeInsets;
};

} // namespace tidepool
