#pragma once

#include "Platform/Controls/CellControl.h"
#include "Platform/Text/TextFieldCell.h"

#include <QVariant>

namespace platform {

class FieldEditor;
class FormattedValue;
class Formatter;

/// A line of text. While the keyboard is on an editable one, an editor shows the text, on the same pixels;
/// otherwise there is none, and the field costs as much as a label.
///
/// With a formatter the field has an object: it shows the formatter's text for it, gives the user another to
/// edit if the formatter has one, refuses what may not be typed, and reads the text when the editing ends. A
/// text that cannot be read stays, and no action is sent.
class TextField : public CellControl<QWidget, TextFieldCell> {
    Q_OBJECT

public:
    explicit TextField(const QString& text = {}, QWidget* parent = nullptr);
    ~TextField() override;

    /// What is shown, also while it is edited.
    const QString& stringValue() const { return m_text; }

    /// Ends no editing: the editor shows the new text. A formatter reads it; what it cannot read becomes the
    /// object as it is.
    void setStringValue(const QString& text);

    /// Null for none. The object stays.
    const std::shared_ptr<const Formatter>& formatter() const;
    void setFormatter(std::shared_ptr<const Formatter> formatter);

    /// Without a formatter, the text.
    QVariant objectValue() const;

    /// Ends no editing: the editor shows the new object.
    void setObjectValue(const QVariant& object);

    /// Why the text that the user has left could not be read, for people.
    std::optional<QString> formattingError() const;

    /// As if the user had typed it and gone on. Nothing happens to a field that is not editable or disabled.
    void replaceText(const QString& text);

    /// 0 for what is no number.
    double doubleValue() const override { return objectValue().toDouble(); }

    bool isEditable() const { return m_isEditable; }

    /// A field that is not editable is a label, which takes no keyboard.
    void setEditable(bool editable);

    /// The editor while there is one, else null.
    FieldEditor* currentEditor() const;

    /// True while the keyboard is on the field or its editor.
    bool isFirstResponder() const;

    /// Of a field without a frame, what its cell keeps free beside the text.
    QMarginsF alignmentRectInsets() const override;
    QSizeF intrinsicContentSize() const override;
    std::optional<qreal> baseline(qreal height) const override;

Q_SIGNALS:
    /// The user has changed the text.
    void textChanged(const QString& text);

    /// By Return, or since the keyboard has gone elsewhere. The action is sent before if the text was
    /// changed.
    void editingEnded();

    /// The formatter has not let stand what was typed or pasted, and why, for people.
    void refused(const QString& reason);

protected:
    TextField(const QString& text, std::unique_ptr<TextFieldCell> cell, QWidget* parent);

    QString cellTitle() const override { return m_text; }

    PreparedText::Ampersands ampersands() const override { return PreparedText::Ampersands::areText; }

    StyledControlState controlFlags() const override;

    bool showsFocus() const override { return isFirstResponder() && isActiveWindow(); }

    /// Gives the editor its font and colours.
    virtual void setUpFieldEditor(FieldEditor& editor);

    /// A key for the editor, before it sees it. True if the field has used it: Escape takes back what was
    /// typed.
    virtual bool keyDown(const QKeyEvent& event);

    /// Sends the action. It is not sent again until the text is another.
    void sendNow();

    /// After the user has changed the text, and whoever listens has heard of it.
    virtual void textDidChange() {}

    /// After the formatter has not let stand what the user has typed; emits `refused`.
    virtual void inputWasRefused(const QString& reason) { Q_EMIT refused(reason); }

    /// After the error has come or gone.
    virtual void formattingErrorDidChange() {}

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
    friend FieldEditor;

    void makeEditor();
    void beginEditing(Qt::FocusReason reason);
    void endEditing();
    void placeEditor();
    void showText(const QString& text);
    void showObject();
    void takeText(const QString& text);
    void takeUserText(const QString& text);
    void forgive();
    void errorChanged();
    void commit();
    void cancel();
    bool readText();
    void finishText();
    bool sendToEditor(QMouseEvent& event);

    std::shared_ptr<FormattedValue> m_formatted; // null without a formatter
    QString m_text;
    QString m_sentText; // when the action was sent last, or the editing began
    FieldEditor* m_editor = nullptr;
    bool m_isEditable = true;
    bool m_isEditing = false;
};

} // namespace platform
