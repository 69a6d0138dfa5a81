#pragma once

#include "Platform/Controls/CellControl.h"
#include "Platform/Text/TextFieldCell.h"

#include <QPointer>

namespace platform {

class FieldEditor;

/// A line of text. While the keyboard is on an editable one, an editor shows the text, on the same pixels;
/// otherwise there is none, and the field costs as much as a label.
class TextField : public CellControl<QWidget, TextFieldCell> {
    Q_OBJECT

public:
    explicit TextField(const QString& text = {}, QWidget* parent = nullptr);
    ~TextField() override;

    /// What is shown, also while it is edited.
    const QString& stringValue() const { return m_text; }

    /// Ends no editing: the editor shows the new text.
    void setStringValue(const QString& text);

    /// As if the user had typed it and gone on. Nothing happens to a field that is not editable or disabled.
    void replaceText(const QString& text);

    double doubleValue() const override { return m_text.toDouble(); }

    bool isEditable() const { return m_isEditable; }

    /// A field that is not editable is a label, which takes no keyboard.
    void setEditable(bool editable);

    /// The editor while there is one, else null.
    FieldEditor* currentEditor() const;

    /// True while the keyboard is on the field or its editor.
    bool isFirstResponder() const;

    std::optional<qreal> baseline(qreal height) const override;

Q_SIGNALS:
    /// The user has changed the text.
    void textChanged(const QString& text);

    /// By Return, or since the keyboard has gone elsewhere. The action is sent before if the text was
    /// changed.
    void editingEnded();

protected:
    TextField(const QString& text, std::unique_ptr<TextFieldCell> cell, QWidget* parent);

    QString cellTitle() const override { return m_text; }

    PreparedText::Ampersands ampersands() const override { return PreparedText::Ampersands::areText; }

    bool showsFocus() const override { return isFirstResponder() && isActiveWindow(); }

    /// Gives the editor its font and colours.
    virtual void setUpFieldEditor(FieldEditor& editor);

    /// Where the line of the editor lies.
    virtual QRectF editorLine() const;

    /// After the user has changed the text.
    virtual void textDidChange() {}

    /// The keyboard came to the field, or has left it.
    virtual void firstResponderDidChange() {}

    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void makeEditor();
    void beginEditing(Qt::FocusReason reason);
    void endEditing();
    void placeEditor();
    void takeText(const QString& text);
    void takeUserText(const QString& text);
    void commit();
    void cancel();
    bool sendIfChanged();
    bool sendToEditor(QMouseEvent& event);

    QString m_text;
    QString m_sentText; // when the action was sent last, or the editing began
    FieldEditor* m_editor = nullptr;
    bool m_isEditable = true;
    bool m_isEditing = false;
};

} // namespace platform
