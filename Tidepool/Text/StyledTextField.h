#pragma once

#include "Tidepool/Text/FirstResponderAwareTextField.h"
#include "Tidepool/Text/SimpleTextViewPopover.h"
#include "Tidepool/Text/StyledTextFieldCell.h"

namespace tidepool {

/// The kit's text field. It shakes when its formatter refuses what is typed; that and what is wrong with the
/// text stands in a popover while the keyboard is on the field.
///
///     auto* name = new StyledTextField(QStringLiteral("Bass"), this);
///     connect(name, &StyledTextField::editingEnded, this, [=] { rename(name->stringValue()); });
class StyledTextField : public FirstResponderAwareTextField {
    Q_OBJECT

public:
    explicit StyledTextField(const QString& text = {}, QWidget* parent = nullptr);

    /// Its setters show the change.
    StyledTextFieldCell& cell() const { return static_cast<StyledTextFieldCell&>(TextField::cell()); }

    bool isSelected() const { return cell().isSelected(); }

    void setSelected(bool selected) { cell().setSelected(selected); }

    bool verticallyCenter() const { return cell().verticallyCenter(); }

    void setVerticallyCenter(bool centers) { cell().setVerticallyCenter(centers); }

    /// How far a framed field reaches above and below what lines up with its neighbours, in points.
    double verticalInset() const { return m_verticalInset; }

    void setVerticalInset(double inset);

    /// Of the messages about the text.
    SimpleTextViewPopoverController& popoverController() { return m_popoverController; }

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;

protected:
    /// For subclasses with a cell of their own.
    StyledTextField(const QString& text, std::unique_ptr<StyledTextFieldCell> cell, QWidget* parent);

    void setUpFieldEditor(platform::FieldEditor& editor) override;

    /// What is wrong with the text.
    virtual std::optional<QString> shownMessage() const { return formattingError(); }

    void textDidChange() override { updateMessage(); }

    void formattingErrorDidChange() override { updateMessage(); }

    void firstResponderStatusChanged(bool) override { updateMessage(); }

    void inputWasRefused(const QString& reason) override;

private:
    void updateMessage();

    SimpleTextViewPopoverController m_popoverController;
    double m_verticalInset = 0;
};

} // namespace tidepool
