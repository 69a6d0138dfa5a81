#pragma once

#include "Platform/Controls/ButtonStyle.h"

namespace tidepool {

/// A button like the tab of a window.
class SegmentedButtonStyle : public platform::ButtonStyle {
public:
    explicit SegmentedButtonStyle(bool isSelected) : m_isSelected(isSelected) {}

    bool isSelected() const { return m_isSelected; }

    QFont font() const override;
    QSizeF size(QSizeF label) const override;

    /// Dimmed while the button is disabled; a label that is too long ends with an ellipsis.
    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;

private:
    bool m_isSelected;
};

} // namespace tidepool
