#include "Tidepool/Text/WidthResizingTextField.h"

namespace tidepool {

QSizeF WidthResizingTextField::intrinsicContentSize() const {
    constexpr qreal insertionPoint = 2;
    const qreal width = cell().cellSize(context()).width() + (isEditable() ? insertionPoint : 0);
    const QMarginsF insets = alignmentRectInsets();
    return {width - insets.left() - insets.right(), StyledTextField::intrinsicContentSize().height()};
}

} // namespace tidepool
