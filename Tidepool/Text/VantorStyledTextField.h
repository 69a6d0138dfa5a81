#pragma once

#include "Platform/Core/Binding.h"
#include "Tidepool/Text/StyledTextField.h"

#include <functional>

namespace tidepool {

/// A text field with its text bound to `text`. Main thread.
class VantorStyledTextField : public QWidget {
    Q_OBJECT

public:
    /// Told that the text was changed, true, or that the editing has ended, false.
    using OnEditingChanged = std::function<void(bool)>;

    /// Without a style the field has that of its surroundings.
    VantorStyledTextField(const QString& placeholder, platform::Binding<QString> text,
                          std::shared_ptr<const TextFieldCellStyle> style = {},
                          OnEditingChanged onEditingChanged = {}, QWidget* parent = nullptr);

    ~VantorStyledTextField() override;

    /// Shows what the binding has by now. Call it when somebody else has changed that.
    void updateView();

    StyledTextField& field() const { return *m_field; }

private:
    void controlTextDidChange(const QString& text);
    void controlTextDidEndEditing();

    platform::Binding<QString> m_text;
    OnEditingChanged m_onEditingChanged;
    StyledTextField* m_field;
};

} // namespace tidepool
