#pragma once

#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Choices/StyledMenuButtonCell.h"

namespace tidepool {

/// What the kit's buttons with a menu share: a label before the title, and a size by the bezel.
class StyledMenuButton : public platform::PopUpButton {
    Q_OBJECT

public:
    /// Its setters show the change.
    StyledMenuButtonCell& cell() const { return static_cast<StyledMenuButtonCell&>(PopUpButton::cell()); }

    const std::optional<QString>& label() const { return cell().label(); }

    /// Assistive technology names the button by it, unless it has a name.
    void setLabel(std::optional<QString> label);

    QString nameBesideTitle() const override { return label().value_or(QString()); }

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;
    QRectF focusRingMaskBounds() const override;

protected:
    StyledMenuButton(std::unique_ptr<StyledMenuButtonCell> cell, QWidget* parent);
};

} // namespace tidepool
