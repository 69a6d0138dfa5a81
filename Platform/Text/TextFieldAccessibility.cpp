#include "Platform/Text/TextFieldAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Text/TextField.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

/// The editor, while there is one, is a child that tells of the insertion point and the selection.
class TextFieldInterface : public QAccessibleWidget {
public:
    explicit TextFieldInterface(TextField& field)
        : QAccessibleWidget(&field, field.isEditable() ? QAccessible::EditableText : QAccessible::StaticText),
          m_field(field) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return m_field.stringValue();
        if (kind == QAccessible::Name && !m_field.isEditable() && m_field.accessibleName().isEmpty())
            return m_field.stringValue();
        return QAccessibleWidget::text(kind);
    }

    void setText(QAccessible::Text kind, const QString& text) override {
        if (kind == QAccessible::Value && m_field.isEditable() && m_field.isEnabled())
            m_field.replaceText(text);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = m_field.isEditable();
        state.readOnly = !m_field.isEditable();
        return state;
    }

private:
    TextField& m_field;
};

} // namespace

void installTextFieldAccessibility() {
    installAccessibility<TextField, TextFieldInterface>();
}

} // namespace platform
