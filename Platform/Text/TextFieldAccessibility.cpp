#include "Platform/Text/TextFieldAccessibility.h"

#include "Platform/Controls/Accessibility.h"
#include "Platform/Text/FieldEditor.h"
#include "Platform/Text/TextField.h"

#include <QAccessibleWidget>

namespace platform {

namespace {

/// The editor, while there is one, is a child that tells of the insertion point and the selection; without
/// it the text has neither.
class TextFieldInterface : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface {
public:
    explicit TextFieldInterface(TextField& field)
        : QAccessibleWidget(&field, field.isEditable() ? QAccessible::EditableText : QAccessible::StaticText),
          m_field(field) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        if (type == QAccessible::EditableTextInterface && m_field.isEditable())
            return static_cast<QAccessibleEditableTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return m_field.stringValue();
        if (kind == QAccessible::Name && !m_field.isEditable() && m_field.accessibleName().isEmpty())
            return m_field.stringValue();
        QString text = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Name && text.isEmpty())
            return m_field.cell().placeholderString();
        if (kind == QAccessible::Description && m_field.formattingError())
            return *m_field.formattingError();
        return text;
    }

    void setText(QAccessible::Text kind, const QString& text) override {
        if (kind == QAccessible::Value)
            m_field.replaceText(text);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = m_field.isEditable();
        state.readOnly = !m_field.isEditable();
        return state;
    }

    QString text(int start, int end) const override { return m_field.stringValue().mid(start, end - start); }

    int characterCount() const override { return static_cast<int>(m_field.stringValue().size()); }

    int cursorPosition() const override {
        const FieldEditor* const editor = m_field.currentEditor();
        return editor != nullptr ? editor->cursorPosition() : 0;
    }

    void setCursorPosition(int position) override {
        m_field.setFocus();
        if (FieldEditor* const editor = m_field.currentEditor())
            editor->setCursorPosition(position);
    }

    void selection(int, int* start, int* end) const override { *start = *end = 0; }

    int selectionCount() const override { return 0; }

    void addSelection(int, int) override {}

    void removeSelection(int) override {}

    void setSelection(int, int, int) override {}

    QRect characterRect(int) const override { return rect(); }

    int offsetAtPoint(const QPoint&) const override { return -1; }

    void scrollToSubstring(int, int) override {}

    QString attributes(int, int* start, int* end) const override {
        *start = 0;
        *end = characterCount();
        return {};
    }

    void deleteText(int start, int end) override { replaceText(start, end, {}); }

    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }

    void replaceText(int start, int end, const QString& text) override {
        QString whole = m_field.stringValue();
        m_field.replaceText(whole.replace(start, end - start, text));
    }

private:
    TextField& m_field;
};

} // namespace

void installTextFieldAccessibility() {
    installAccessibility<TextField, TextFieldInterface>();
}

} // namespace platform
