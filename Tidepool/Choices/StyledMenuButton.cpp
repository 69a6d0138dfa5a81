#include "Tidepool/Choices/StyledMenuButton.h"

#include <QAccessible>

#include <utility>

namespace tidepool {

StyledMenuButton::StyledMenuButton(std::unique_ptr<StyledMenuButtonCell> cell, QWidget* parent)
    : PopUpButton(std::move(cell), parent) {
    // The style's images show the press.
    this->cell().setHighlightsBy(platform::ButtonCell::none);
}

void StyledMenuButton::setLabel(std::optional<QString> label) {
    if (label == this->label())
        return;
    cell().setLabel(std::move(label));
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

QMarginsF StyledMenuButton::alignmentRectInsets() const {
    return cell().style().alignmentRectInsets();
}

QSizeF StyledMenuButton::intrinsicContentSize() const {
    return PopUpButton::intrinsicContentSize().shrunkBy(alignmentRectInsets());
}

QRectF StyledMenuButton::focusRingMaskBounds() const {
    return cell().focusRingMaskBounds(QRectF(rect()), context());
}

} // namespace tidepool
