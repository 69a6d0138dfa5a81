#include "Tidepool/Buttons/BackButton.h"

namespace tidepool {

BackButton::BackButton(const QString& title, QWidget* parent)
    : StyledButton(title, std::make_unique<BackButtonCell>(), parent) {}

void BackButton::setAlphaValue(qreal alpha) {
    StyledButton::setAlphaValue(alpha);
    // One that nobody has hidden would become a window of its own if it is not in one yet.
    if (alpha > 0 && isHidden() && testAttribute(Qt::WA_WState_ExplicitShowHide))
        show();
    else if (alpha == 0)
        hide(); // also one that was never shown, which its window would show
}

QMarginsF BackButton::alignmentRectInsets() const {
    constexpr qreal top = 6;
    return {0, top, 0, 0};
}

} // namespace tidepool
