#pragma once

#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Buttons/VantorPushButtonCell.h"

#include <optional>

namespace tidepool {

/// A push button whose size and insets are set for each one, rather than by a style.
class VantorPushButton : public StyledButton {
    Q_OBJECT

public:
    explicit VantorPushButton(const QString& title = {}, QWidget* parent = nullptr);

    const std::optional<double>& fixedHeight() const { return m_fixedHeight; }

    /// In points; the natural height without one.
    void setFixedHeight(std::optional<double> height);

    VantorPushButtonCell& cell() const { return static_cast<VantorPushButtonCell&>(StyledButton::cell()); }

    QMarginsF alignmentRectInsets() const override { return {}; }

    QSizeF intrinsicContentSize() const override;

private:
    std::optional<double> m_fixedHeight;
};

} // namespace tidepool
