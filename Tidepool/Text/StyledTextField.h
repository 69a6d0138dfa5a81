#pragma once

#include "Tidepool/Text/FirstResponderAwareTextField.h"
#include "Tidepool/Text/StyledTextFieldCell.h"

namespace tidepool {

/// The kit's text field.
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

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;

protected:
    /// For subclasses with a cell of their own.
    StyledTextField(const QString& text, std::unique_ptr<StyledTextFieldCell> cell, QWidget* parent);

    void setUpFieldEditor(platform::FieldEditor& editor) override;

private:
    double m_verticalInset = 0;
};

} // namespace tidepool
