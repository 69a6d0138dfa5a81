#include "Tidepool/Buttons/StyledButton.h"

#include "Tidepool/Buttons/CellDrawing.h"

#include <algorithm>
#include <utility>

namespace tidepool {

StyledButton::StyledButton(const QString& title, QWidget* parent)
    : StyledButton(title, std::make_unique<StyledButtonCell>(), parent) {}

StyledButton::StyledButton(const QString& title, double fixedWidth, QWidget* parent)
    : StyledButton(title, parent) {
    m_fixedWidth = fixedWidth;
}

StyledButton::StyledButton(const QString& title, std::unique_ptr<StyledButtonCell> cell, QWidget* parent)
    : PushButton(title, std::move(cell), parent) {
    // The style's images show the press.
    styledCell().setHighlightsBy(StyledButtonCell::none);
}

StyledButtonCell& StyledButton::styledCell() const {
    return static_cast<StyledButtonCell&>(cell());
}

void StyledButton::setFixedWidth(std::optional<double> width) {
    m_fixedWidth = width;
    updateGeometry();
}

bool StyledButton::isSelected() const {
    return styledCell().isSelected();
}

void StyledButton::setSelected(bool selected) {
    if (selected == isSelected())
        return;
    styledCell().setSelected(selected);
    update();
}

void StyledButton::setButtonStyle(std::shared_ptr<const ButtonCellStyle> style) {
    styledCell().setStyle(std::move(style));
    platform::notifyStyleChange(*this);
}

QMarginsF StyledButton::alignmentRectInsets() const {
    return sharedStyle<ButtonCellStyle>().alignmentRectInsets();
}

QSizeF StyledButton::intrinsicContentSize() const {
    const QSizeF natural = PushButton::intrinsicContentSize();
    const double width = m_fixedWidth.value_or(natural.width());
    const StyledButtonCell& cell = styledCell();
    const platform::Image* bezel = cell.isBordered() ? cell.style().bezelImage(cell.controlState()) : nullptr;
    if (bezel == nullptr)
        return {width, natural.height()};
    const QMarginsF insets = alignmentRectInsets();
    const double framed = std::max(m_fixedWidth.value_or(bezel->size().width()), width);
    return {framed - insets.left() - insets.right(), bezel->size().height() - insets.top() - insets.bottom()};
}

void StyledButton::drawFocus(QPainter& painter) {
    const StyledButtonCell& cell = styledCell();
    drawFocusRing(painter, focusRingMaskBounds(), cell.style().focusRingColor(cell.controlState()));
}

} // namespace tidepool
