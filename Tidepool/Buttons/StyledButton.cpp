#include "Tidepool/Buttons/StyledButton.h"

#include "Platform/Controls/Menu.h"

#include <QMouseEvent>

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
    this->cell().setHighlightsBy(StyledButtonCell::none);
}

void StyledButton::setFixedWidth(std::optional<double> width) {
    m_fixedWidth = width;
    updateGeometry();
}

QMarginsF StyledButton::alignmentRectInsets() const {
    return sharedStyle<ButtonCellStyle>().alignmentRectInsets();
}

QSizeF StyledButton::intrinsicContentSize() const {
    const platform::CellContext look = context();
    const QSizeF natural = cell().cellSize(look);
    const double width = m_fixedWidth.value_or(natural.width());
    const platform::Image* bezel = cell().bezel(look);
    if (bezel == nullptr)
        return {width, natural.height()};
    const QMarginsF insets = alignmentRectInsets();
    const double framed = std::max(m_fixedWidth.value_or(bezel->size().width()), width);
    return {framed - insets.left() - insets.right(), bezel->size().height() - insets.top() - insets.bottom()};
}

bool StyledButton::asksForMenu(const QMouseEvent& press) {
    return press.button() == Qt::RightButton ||
           (press.button() == Qt::LeftButton && press.modifiers().testFlag(Qt::ControlModifier));
}

QPoint StyledButton::menuPosition() const {
    constexpr int gap = 4;
    return platform::below(*this, gap);
}

} // namespace tidepool
