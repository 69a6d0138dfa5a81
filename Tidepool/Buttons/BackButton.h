#pragma once

#include "Tidepool/Buttons/BackButtonCell.h"
#include "Tidepool/Buttons/StyledButton.h"

namespace tidepool {

/// Leads back to where the user came from. It is hidden while it is fully transparent.
class BackButton : public StyledButton {
    Q_OBJECT

public:
    explicit BackButton(const QString& title = {}, QWidget* parent = nullptr);

    BackButtonCell& cell() const { return static_cast<BackButtonCell&>(StyledButton::cell()); }

    /// Above 0 shows a hidden button, 0 hides it.
    void setAlphaValue(qreal alpha) override;

    QMarginsF alignmentRectInsets() const override;

    /// Without the room above the bezel.
    QRectF focusRingMaskBounds() const override {
        return QRectF(rect()).marginsRemoved(alignmentRectInsets());
    }

    /// Its cell toggles, which every other time makes the title greyer, but there is nothing to tell of that.
    bool showsState() const override { return false; }
};

} // namespace tidepool
