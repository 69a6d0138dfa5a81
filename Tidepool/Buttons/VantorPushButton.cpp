#include "Tidepool/Buttons/VantorPushButton.h"

namespace tidepool {

VantorPushButton::VantorPushButton(const QString& title, QWidget* parent)
    : StyledButton(title, std::make_unique<VantorPushButtonCell>(), parent) {}

void VantorPushButton::setFixedHeight(std::optional<double> height) {
    m_fixedHeight = height;
    updateGeometry();
}

QSizeF VantorPushButton::intrinsicContentSize() const {
    const QSizeF natural = cell().cellSize(context());
    return {fixedWidth().value_or(natural.width()), m_fixedHeight.value_or(natural.height())};
}

} // namespace tidepool
