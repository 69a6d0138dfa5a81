#pragma once

#include "Platform/Text/ComboBox.h"
#include "Tidepool/Choices/StyledComboBoxCell.h"

namespace tidepool {

/// The kit's combo box: a text field with a list of values to choose.
///
///     auto* size = new StyledComboBox(this);
///     size->setObjectValues({8, 10, 12, 16});
///     size->setAction(platform::Selector{"takeSize"}, this);
class StyledComboBox : public platform::ComboBox {
    Q_OBJECT

public:
    explicit StyledComboBox(QWidget* parent = nullptr);

    /// Its setters show the change.
    StyledComboBoxCell& cell() const { return static_cast<StyledComboBoxCell&>(ComboBox::cell()); }

    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;
    QRectF focusRingMaskBounds() const override;

protected:
    void willPopUp() override { cell().setPopupOpen(true); }

    void willDismiss() override { cell().setPopupOpen(false); }

    void setUpFieldEditor(platform::FieldEditor& editor) override;
};

} // namespace tidepool
