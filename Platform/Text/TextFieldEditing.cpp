#include "Platform/Text/FieldEditor.h"
#include "Platform/Text/FormattedValue.h"
#include "Platform/Text/TextField.h"

#include <QKeyEvent>
#include <QPalette>
#include <QPointer>
#include <QStyle>

#include <utility>

namespace platform {

void TextField::makeEditor() {
    m_editor = new FieldEditor(*this);
    setTabOrder(this, m_editor);
    connect(m_editor, &FieldEditor::textEdited, this, &TextField::takeUserText);
    connect(m_editor, &FieldEditor::returnPressed, this, &TextField::commit);
    connect(m_editor, &FieldEditor::left, this, &TextField::endEditing);
    connect(m_editor, &FieldEditor::refused, this, &TextField::inputWasRefused);
}

void TextField::beginEditing(Qt::FocusReason reason) {
    if (m_isEditing || !m_isEditable || !isEnabled())
        return;
    const auto formatted = m_formatted;
    const QPointer<TextField> self(this);
    const QString text = formatted && !formatted->error() ? formatted->editingText() : m_text;
    if (!self || m_isEditing)
        return;
    if (m_editor == nullptr)
        makeEditor();
    m_isEditing = true;
    takeText(text);
    m_sentText = text;
    setUpFieldEditor(*m_editor);
    m_editor->setFormattedValue(m_formatted);
    m_editor->begin(text);
    placeEditor();
    m_editor->show();
    setFocusPolicy(Qt::NoFocus); // the editor stands for the field among the others
    m_editor->setFocus(reason);
    setFocusProxy(m_editor);
    cell().setShowsFirstResponder(true);
    firstResponderDidChange();
}

void TextField::endEditing() {
    if (!std::exchange(m_isEditing, false))
        return;
    const QPointer<TextField> self(this);
    setFocusProxy(nullptr);
    setFocusPolicy(m_isEditable ? Qt::StrongFocus : Qt::NoFocus);
    m_editor->hide();
    cell().setShowsFirstResponder(false);
    firstResponderDidChange();
    if (self)
        finishText();
    if (self)
        Q_EMIT editingEnded();
}

/// Return.
void TextField::commit() {
    const QPointer<TextField> self(this);
    if (!readText())
        return;
    m_editor->setModified(false);
    m_editor->selectAll();
    sendNow();
    if (self)
        Q_EMIT editingEnded();
}

bool TextField::keyDown(const QKeyEvent& event) {
    if (event.key() != Qt::Key_Escape || !(m_editor->isModified() || formattingError()))
        return false;
    cancel();
    return true;
}

/// The text is again that of the object, or what was sent last.
void TextField::cancel() {
    const QPointer<TextField> self(this);
    if (m_formatted)
        setObjectValue(m_formatted->object());
    if (!self || !m_isEditing)
        return;
    m_editor->begin(m_sentText);
    m_editor->selectAll();
    takeUserText(m_sentText);
}

void TextField::takeUserText(const QString& text) {
    const QPointer<TextField> self(this);
    takeText(text);
    forgive();
    if (self)
        Q_EMIT textChanged(text);
    if (self)
        textDidChange();
}

/// What was wrong may be right by now.
void TextField::forgive() {
    const auto formatted = m_formatted;
    if (!formatted || !formatted->error())
        return;
    const QPointer<TextField> self(this);
    formatted->forgive(m_text);
    if (self && !formatted->error())
        errorChanged();
}

void TextField::errorChanged() {
    update();
    formattingErrorDidChange();
}

/// Takes the object from the text. False if there is none, or no field any more.
bool TextField::readText() {
    const auto formatted = m_formatted;
    if (!formatted)
        return true;
    const QPointer<TextField> self(this);
    const bool isRead = formatted->read(m_text);
    if (!self || m_formatted != formatted) // a formatter may do either
        return self != nullptr;
    if (isRead)
        showObject();
    else
        errorChanged();
    return self && isRead;
}

void TextField::finishText() {
    const bool isChanged = m_text != m_sentText;
    if ((isChanged || formattingError()) && !readText())
        return;
    const QPointer<TextField> self(this);
    if (!isChanged && m_formatted)
        showObject();
    if (self && isChanged)
        sendNow();
}

void TextField::sendNow() {
    m_sentText = m_text;
    sendAction();
}

void TextField::setUpFieldEditor(FieldEditor& editor) {
    const CellContext own = context();
    editor.setFont(own.title.font());
    editor.setAlignment(QStyle::visualAlignment(own.direction, cell().alignment()) | Qt::AlignTop |
                        Qt::AlignAbsolute);
    editor.setPlaceholderText(cell().placeholderString());
    editor.setAccessibleName(accessibleName());
    QPalette palette = this->palette();
    palette.setColor(QPalette::Base, Qt::transparent);
    palette.setColor(QPalette::Text, cell().textColor(own));
    palette.setColor(QPalette::PlaceholderText, cell().placeholderColor(own));
    editor.setPalette(palette);
}

void TextField::placeEditor() {
    if (m_isEditing)
        m_editor->setLine(cell().lineRect(QRectF(rect()), context()));
}

} // namespace platform
