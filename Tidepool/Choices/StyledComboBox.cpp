#include "Tidepool/Choices/StyledComboBox.h"

#include "Platform/Text/FieldEditor.h"

#include <QPalette>

namespace tidepool {

StyledComboBox::StyledComboBox(QWidget* parent) : ComboBox(std::make_unique<StyledComboBoxCell>(), parent) {}

QMarginsF StyledComboBox::alignmentRectInsets() const {
    return cell().style().alignmentRectInsets();
}

QSizeF StyledComboBox::intrinsicContentSize() const {
    constexpr qreal fieldWidth = 120; // whatever is in it
    const qreal height = cell().fieldImage(context()).size().height();
    return QSizeF(fieldWidth, height).shrunkBy(alignmentRectInsets());
}

QRectF StyledComboBox::focusRingMaskBounds() const {
    return QRectF(rect()).marginsRemoved(alignmentRectInsets());
}

void StyledComboBox::setUpFieldEditor(platform::FieldEditor& editor) {
    ComboBox::setUpFieldEditor(editor);
    const ComboBoxStyle& style = cell().style();
    QPalette palette = editor.palette();
    palette.setColor(QPalette::Base, style.textBackgroundColor());
    palette.setColor(QPalette::Highlight, style.selectedBackgroundColor());
    palette.setColor(QPalette::HighlightedText, style.selectedTextColor());
    editor.setPalette(palette);
}

} // namespace tidepool
