#include "Platform/Text/TextField.h"

#include "Platform/Text/FieldEditor.h"
#include "Platform/Text/TextFieldAccessibility.h"

#include <QAccessible>
#include <QApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QStyle>

#include <utility>

namespace platform {

TextField::TextField(const QString& text, QWidget* parent)
    : TextField(text, std::make_unique<TextFieldCell>(), parent) {}

TextField::TextField(const QString& text, std::unique_ptr<TextFieldCell> cell, QWidget* parent)
    : CellControl(std::move(cell), parent), m_text(text) {
    installTextFieldAccessibility();
    setEditable(true);
}

TextField::~TextField() {
    m_isEditing = false;
    if (m_editor == nullptr)
        return;
    m_editor->disconnect(this);
    m_editor->dispose();
}

void TextField::setStringValue(const QString& text) {
    if (m_isEditing && m_editor->text() != text)
        m_editor->setText(text);
    m_sentText = text;
    takeText(text);
}

void TextField::replaceText(const QString& text) {
    if (!m_isEditable || !isEnabled())
        return;
    const QPointer<TextField> self(this);
    if (m_isEditing)
        m_editor->setText(text);
    takeUserText(text);
    if (self)
        sendIfChanged();
}

void TextField::takeUserText(const QString& text) {
    const QPointer<TextField> self(this);
    takeText(text);
    textDidChange();
    if (self)
        Q_EMIT textChanged(text);
}

bool TextField::sendIfChanged() {
    return std::exchange(m_sentText, m_text) != m_text && sendAction();
}

void TextField::takeText(const QString& text) {
    if (text == m_text)
        return;
    m_text = text;
    updateGeometry();
    update();
    QAccessibleValueChangeEvent event(this, text);
    QAccessible::updateAccessibility(&event);
}

void TextField::setEditable(bool editable) {
    m_isEditable = editable;
    if (!editable)
        endEditing();
    setFocusPolicy(editable ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(editable ? Qt::IBeamCursor : Qt::ArrowCursor);
    QSizePolicy policy(editable ? QSizePolicy::Preferred : QSizePolicy::Fixed, QSizePolicy::Fixed);
    setSizePolicy(policy);
}

FieldEditor* TextField::currentEditor() const {
    return m_isEditing ? m_editor : nullptr;
}

bool TextField::isFirstResponder() const {
    return hasFocus() || (m_isEditing && m_editor->hasFocus());
}

std::optional<qreal> TextField::baseline(qreal height) const {
    const CellContext own = context();
    const QRectF line = cell().titleRect(QRectF(0, 0, width(), height), own);
    return line.top() + QFontMetricsF(own.title.font()).ascent();
}

void TextField::makeEditor() {
    m_editor = new FieldEditor(*this);
    setTabOrder(this, m_editor);
    connect(m_editor, &FieldEditor::textEdited, this, &TextField::takeUserText);
    connect(m_editor, &FieldEditor::returnPressed, this, &TextField::commit);
    connect(m_editor, &FieldEditor::cancelled, this, &TextField::cancel);
    connect(m_editor, &FieldEditor::left, this, &TextField::endEditing);
}

void TextField::beginEditing(Qt::FocusReason reason) {
    if (m_isEditing || !m_isEditable || !isEnabled())
        return;
    if (m_editor == nullptr)
        makeEditor();
    m_isEditing = true;
    m_sentText = m_text;
    setUpFieldEditor(*m_editor);
    m_editor->begin(m_text);
    placeEditor();
    m_editor->show();
    setFocusPolicy(Qt::NoFocus); // the editor stands for the field among the others
    m_editor->setFocus(reason);
    cell().setShowsFirstResponder(true);
    firstResponderDidChange();
}

void TextField::endEditing() {
    if (!std::exchange(m_isEditing, false))
        return;
    const QPointer<TextField> self(this);
    setFocusPolicy(m_isEditable ? Qt::StrongFocus : Qt::NoFocus);
    m_editor->hide();
    cell().setShowsFirstResponder(false);
    firstResponderDidChange();
    if (self)
        sendIfChanged();
    if (self)
        Q_EMIT editingEnded();
}

/// Return.
void TextField::commit() {
    const QPointer<TextField> self(this);
    m_sentText = m_text;
    m_editor->setModified(false);
    m_editor->selectAll();
    sendAction();
    if (self)
        Q_EMIT editingEnded();
}

/// Escape: the text is again what was sent last.
void TextField::cancel() {
    m_editor->begin(m_sentText);
    m_editor->selectAll();
    takeUserText(m_sentText);
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

QRectF TextField::editorLine() const {
    return cell().lineRect(QRectF(rect()), context());
}

void TextField::placeEditor() {
    if (m_isEditing)
        m_editor->setLine(editorLine());
}

void TextField::changeEvent(QEvent* event) {
    CellControl::changeEvent(event);
    if (!isEnabled())
        endEditing();
    if (!m_isEditing)
        return;
    setUpFieldEditor(*m_editor);
    placeEditor();
}

void TextField::focusInEvent(QFocusEvent* event) {
    CellControl::focusInEvent(event);
    beginEditing(event->reason());
}

void TextField::focusOutEvent(QFocusEvent* event) {
    CellControl::focusOutEvent(event);
    update();
}

void TextField::mousePressEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mousePressEvent(event);
}

void TextField::mouseMoveEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mouseMoveEvent(event);
}

void TextField::mouseReleaseEvent(QMouseEvent* event) {
    if (!sendToEditor(*event))
        CellControl::mouseReleaseEvent(event);
}

/// The press that brings the editor up, and those beside it, set its insertion point.
bool TextField::sendToEditor(QMouseEvent& event) {
    if (!m_isEditing)
        return false;
    QMouseEvent moved(event.type(), m_editor->mapFrom(this, event.position()), event.globalPosition(),
                      event.button(), event.buttons(), event.modifiers(), event.pointingDevice());
    QApplication::sendEvent(m_editor, &moved);
    return true;
}

void TextField::resizeEvent(QResizeEvent* event) {
    CellControl::resizeEvent(event);
    placeEditor();
}

void TextField::hideEvent(QHideEvent* event) {
    CellControl::hideEvent(event);
    endEditing();
}

} // namespace platform
