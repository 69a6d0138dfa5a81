#include "Tidepool/Choices/StyledPopUpButton.h"

#include <utility>

namespace tidepool {

StyledPopUpButton::StyledPopUpButton(bool pullsDown, QWidget* parent)
    : StyledPopUpButton(std::make_unique<StyledPopUpButtonCell>(pullsDown), parent) {}

StyledPopUpButton::StyledPopUpButton(std::unique_ptr<StyledPopUpButtonCell> cell, QWidget* parent)
    : StyledMenuButton(std::move(cell), parent) {}

void StyledPopUpButton::setFixedWidth(std::optional<double> width) {
    m_fixedWidth = width;
    updateGeometry();
}

QSizeF StyledPopUpButton::intrinsicContentSize() const {
    const QSizeF natural = StyledMenuButton::intrinsicContentSize();
    return {m_fixedWidth.value_or(natural.width()), natural.height()};
}

ToolPopUpButton::ToolPopUpButton(bool pullsDown, QWidget* parent)
    : StyledPopUpButton(std::make_unique<ToolPopUpButtonCell>(pullsDown), parent) {}

} // namespace tidepool
