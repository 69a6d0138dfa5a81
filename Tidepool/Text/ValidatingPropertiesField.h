#pragma once

#include "Tidepool/Text/ValidatingTextField.h"

#include <QWidget>

namespace tidepool {

/// A view that validates what is in it, and says what is wrong.
class ValidatingField : public Validating {
public:
    virtual const std::optional<QString>& message() const = 0;
};

/// A field in a list of properties. An icon before the text marks a value that overrides an inherited one, or
/// that is not valid.
class ValidatingPropertiesField : public QWidget, public ValidatingField {
    Q_OBJECT

public:
    explicit ValidatingPropertiesField(const QString& text = {}, QWidget* parent = nullptr);
    ~ValidatingPropertiesField() override;

    ValidatingTextField& textField() const { return *m_textField; }

    bool isValid() const override { return m_textField->isValid(); }

    void setValid(bool valid);

    const std::optional<QString>& message() const override { return m_textField->message(); }

    /// Shown, or taken away, when the text changes next.
    void setMessage(std::optional<QString> message) { m_textField->setMessage(std::move(message)); }

    /// Selected among the properties.
    bool isSelected() const { return m_textField->isSelected(); }

    void setSelected(bool selected);

    /// Whether the value takes the place of an inherited one. Off at first.
    bool isOverride() const { return m_isOverride; }

    void setOverride(bool isOverride);

    SimpleTextViewPopoverController& popoverController() { return m_textField->popoverController(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF iconRect() const;

    ValidatingTextField* m_textField;
    bool m_isOverride = false;
};

} // namespace tidepool
