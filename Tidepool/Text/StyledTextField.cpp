#include "Tidepool/Text/StyledTextField.h"

#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Views/Shake.h"

#include <QPalette>

namespace tidepool {

using platform::CellContext;

StyledTextField::StyledTextField(const QString& text, QWidget* parent)
    : StyledTextField(text, std::make_unique<StyledTextFieldCell>(), parent) {}

StyledTextField::StyledTextField(const QString& text, std::unique_ptr<StyledTextFieldCell> cell,
                                 QWidget* parent)
    : FirstResponderAwareTextField(text, std::move(cell), parent) {}

void StyledTextField::setVerticalInset(double inset) {
    m_verticalInset = inset;
    updateGeometry();
}

QMarginsF StyledTextField::alignmentRectInsets() const {
    return cell().isFramed() ? QMarginsF(2, m_verticalInset, 2, m_verticalInset)
                             : TextField::alignmentRectInsets();
}

QSizeF StyledTextField::intrinsicContentSize() const {
    constexpr qreal fieldWidth = 120; // whatever is typed into it
    const CellContext own = context();
    const QSizeF natural = cell().cellSize(own);
    const platform::Image* bezel = cell().bezel(own);
    const QSizeF framed(isEditable() ? fieldWidth : natural.width(),
                        bezel != nullptr ? bezel->size().height() : natural.height());
    return framed.shrunkBy(alignmentRectInsets());
}

void StyledTextField::setUpFieldEditor(platform::FieldEditor& editor) {
    FirstResponderAwareTextField::setUpFieldEditor(editor);
    const CellContext own = context();
    const auto& style = static_cast<const TextFieldCellStyle&>(own.style);
    QPalette palette = editor.palette();
    palette.setColor(QPalette::Base, style.textBackgroundColor());
    palette.setColor(QPalette::Text, style.textColor());
    palette.setColor(QPalette::Highlight, style.selectedBackgroundColor());
    palette.setColor(QPalette::HighlightedText, style.selectedTextColor());
    editor.setPalette(palette);
}

void StyledTextField::updateMessage() {
    m_popoverController.update(isFirstResponder() ? shownMessage() : std::nullopt, *this);
}

void StyledTextField::inputWasRefused(const QString& reason) {
    shake(*this);
    m_popoverController.update(reason, *this);
    FirstResponderAwareTextField::inputWasRefused(reason);
}

} // namespace tidepool
